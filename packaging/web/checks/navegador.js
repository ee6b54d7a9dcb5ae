// SPDX-License-Identifier: GPL-3.0-or-later
// Chromium without a window, spoken to over its debugging protocol (ws, of Debian's node-ws).
"use strict";

const fs = require("node:fs");
const os = require("node:os");
const path = require("node:path");
const WebSocket = require("ws");
const { Proceso } = require("./proceso.js");

const espera = (ms) => new Promise((listo) => setTimeout(listo, ms));

/// Asks again and again until `prueba` gives something; throws when it never does.
async function hasta(prueba, que, plazo = 60000) {
    const limite = Date.now() + plazo;
    for (;;) {
        const valor = await prueba();
        if (valor)
            return valor;
        if (Date.now() > limite)
            throw new Error(`not within ${plazo / 1000} s: ${que}`);
        await espera(100);
    }
}

const paginasDe = (puerto) => fetch(`http://127.0.0.1:${puerto}/json`).then((respuesta) => respuesta.json()).catch(() => []);

class Navegador {
    /// `ancho` × `alto` is the size of the page. `carpeta` holds what a browser before it has kept.
    static async abre(ancho = 1366, alto = 768, carpeta = fs.mkdtempSync(path.join(os.tmpdir(), "numora-web-"))) {
        const navegador = new Navegador();
        Object.assign(navegador, { carpeta, bajados: path.join(carpeta, "bajados") });
        const nota = path.join(carpeta, "DevToolsActivePort");
        fs.rmSync(nota, { force: true });
        // Qt wants WebGL, which software has to draw here.
        navegador.proceso = new Proceso("chromium", ["--headless=new", "--no-sandbox", "--disable-dev-shm-usage",
            "--use-angle=swiftshader", "--enable-unsafe-swiftshader", "--ignore-gpu-blocklist",
            "--remote-debugging-port=0", `--user-data-dir=${carpeta}`, `--window-size=${ancho},${alto}`, "about:blank"],
            carpeta);
        // The port stands there whole when the second line does.
        const [puerto] = await hasta(() => fs.existsSync(nota) && /^[0-9]+\n\S/.test(fs.readFileSync(nota, "utf8"))
            && fs.readFileSync(nota, "utf8").split("\n"), "the browser's debugging port");
        const pagina = await hasta(async () => (await paginasDe(puerto)).find(({ type }) => type === "page"),
            "the browser's page");
        await navegador.conecta(pagina.webSocketDebuggerUrl);
        await navegador.manda("Emulation.setDeviceMetricsOverride",
            { width: ancho, height: alto, deviceScaleFactor: 1, mobile: false });
        await navegador.manda("Emulation.setFocusEmulationEnabled", { enabled: true });
        await navegador.manda("Browser.setDownloadBehavior", { behavior: "allow", downloadPath: navegador.bajados });
        navegador.puerto = puerto;
        return navegador;
    }

    conecta(direccion) {
        this.enchufe = new WebSocket(direccion, { maxPayload: 1 << 28 });
        this.turno = 0;
        this.esperan = new Map();
        this.quejas = [];
        this.enchufe.on("message", (texto) => this.oye(JSON.parse(texto)));
        this.enchufe.on("close", () => {
            for (const { mal } of this.esperan.values())
                mal(new Error("the browser has gone"));
            this.esperan.clear();
        });
        return new Promise((listo, mal) => this.enchufe.on("open", listo).on("error", mal)).then(() =>
            Promise.all(["Page", "Runtime", "Log", "Network"].map((parte) => this.manda(`${parte}.enable`))));
    }

    oye(mensaje) {
        if (mensaje.id) {
            const { listo, mal } = this.esperan.get(mensaje.id) ?? {};
            if (!this.esperan.delete(mensaje.id))
                return undefined;
            return mensaje.error ? mal(new Error(mensaje.error.message)) : listo(mensaje.result);
        }
        const datos = mensaje.params;
        this.alSuceder?.(mensaje.method, datos);
        if (mensaje.method === "Runtime.exceptionThrown")
            this.quejas.push(datos.exceptionDetails.exception?.description ?? datos.exceptionDetails.text);
        else if (mensaje.method === "Runtime.consoleAPICalled" && ["error", "assert"].includes(datos.type))
            this.quejas.push(datos.args.map((arg) => arg.value ?? arg.description).join(" "));
        else if (mensaje.method === "Log.entryAdded" && datos.entry.level === "error")
            this.quejas.push(`${datos.entry.text} ${datos.entry.url ?? ""}`);
        return undefined;
    }

    manda(method, params = {}) {
        const id = ++this.turno;
        if (this.enchufe.readyState !== WebSocket.OPEN)
            return Promise.reject(new Error("the browser has gone"));
        this.enchufe.send(JSON.stringify({ id, method, params }));
        return new Promise((listo, mal) => this.esperan.set(id, { listo, mal }));
    }

    async evalua(expression) {
        const { result, exceptionDetails } = await this.manda("Runtime.evaluate",
            { expression, awaitPromise: true, returnByValue: true, userGesture: true });
        if (exceptionDetails)
            throw new Error(exceptionDetails.exception?.description ?? exceptionDetails.text);
        return result.value;
    }

    /// Calls a function of the program's door.
    pide(nombre, ...argumentos) {
        return this.evalua(`window.numora.${nombre}(${argumentos.map((uno) => JSON.stringify(uno)).join(", ")})`);
    }

    async navega(url) {
        const { errorText } = await this.manda("Page.navigate", { url });
        if (errorText)
            throw new Error(`${url}: ${errorText}`);
    }

    /// What the page says of its loading, for whom it waits in vain.
    async dicho() {
        const texto = this.evalua('`${location.href}: ${document.getElementById("estado")?.textContent}`');
        return Promise.race([texto, espera(5000).then(() => "nothing, it does not answer")]).catch((error) => error.message);
    }

    /// Opens an address and waits until the program's main window has been painted; how long that took, in ms.
    async visita(direccion, plazo = 120000) {
        await this.navega("about:blank");
        await this.navega(direccion);
        const pintada = `new Promise((listo) => {
            const mira = () => window.numora && window.numora.lista()
                ? requestAnimationFrame(() => requestAnimationFrame(() => listo(performance.now())))
                : setTimeout(mira, 5);
            location.protocol === "about:" ? listo(0) : mira();
        })`;
        // A page that goes away takes the question with it: it is asked again, of the one that has come.
        const hecha = async (limite) => {
            for (let hora = 0; Date.now() < limite; await espera(20)) {
                hora = await this.evalua(pintada).catch(() => 0);
                if (hora)
                    return Math.round(hora);
            }
            return 0;
        };
        const tiempo = await Promise.race([hecha(Date.now() + plazo), espera(plazo).then(() => 0)]);
        if (!tiempo)
            throw new Error(`no program within ${plazo / 1000} s, the page says ${await this.dicho()}`);
        return tiempo;
    }

    /// Until the next event of that name.
    suceso(nombre, plazo = 20000) {
        return new Promise((listo, mal) => {
            const tarde = setTimeout(() => mal(new Error(`no ${nombre} within ${plazo / 1000} s`)), plazo);
            this.alSuceder = (cual, datos) => {
                if (cual !== nombre)
                    return;
                clearTimeout(tarde);
                this.alSuceder = undefined;
                listo(datos);
            };
        });
    }

    /// The file that is downloaded when something is done: { nombre, archivo, texto }.
    async baja(hace) {
        const antes = new Set(fs.existsSync(this.bajados) ? fs.readdirSync(this.bajados) : []);
        await hace();
        const nombre = await hasta(() => (fs.existsSync(this.bajados) ? fs.readdirSync(this.bajados) : [])
            .find((uno) => !antes.has(uno) && !uno.endsWith(".crdownload") && !uno.startsWith(".")), "a download", 20000);
        const archivo = path.join(this.bajados, nombre);
        return { nombre, archivo, texto: fs.readFileSync(archivo, "utf8") };
    }

    /// Gives a file to the browser's dialog, which opens when something is done.
    async sube(archivo, hace) {
        await this.manda("Page.setInterceptFileChooserDialog", { enabled: true });
        const abierto = this.suceso("Page.fileChooserOpened");
        abierto.catch(() => {});
        await hace();
        const { backendNodeId } = await abierto;
        await this.manda("DOM.setFileInputFiles", { files: [archivo], backendNodeId });
        await this.manda("Page.setInterceptFileChooserDialog", { enabled: false });
    }

    /// How many bytes a second the network gives; 0: all.
    frena(bytes) {
        return this.manda("Network.emulateNetworkConditions",
            { offline: false, latency: 0, downloadThroughput: bytes || -1, uploadThroughput: -1 });
    }

    /// Another tab of the same browser.
    async otraPestana(direccion) {
        const { targetId } = await this.manda("Target.createTarget", { url: direccion });
        const otra = new Navegador();
        await otra.conecta(`ws://127.0.0.1:${this.puerto}/devtools/page/${targetId}`);
        return otra;
    }

    /// Lets this browser go before whatever else the machine does.
    adelanta() {
        this.proceso.adelanta();
    }

    /// Without a word of warning to the page.
    mata() {
        this.enchufe.close();
        return this.proceso.mata();
    }

    /// A browser that has what this one has kept, which is gone.
    otroComo() {
        return Navegador.abre(undefined, undefined, this.carpeta);
    }

    async retrata(archivo) {
        const { data } = await this.manda("Page.captureScreenshot", { format: "png" });
        fs.writeFileSync(archivo, Buffer.from(data, "base64"));
    }

    cierra() {
        this.enchufe.close();
        return this.proceso.cierra();
    }
}

module.exports = { Navegador, espera, hasta };
