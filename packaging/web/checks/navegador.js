// SPDX-License-Identifier: GPL-3.0-or-later
// Chromium without a window, spoken to over its debugging protocol (ws, of Debian's node-ws).
"use strict";

const { spawn } = require("node:child_process");
const fs = require("node:fs");
const os = require("node:os");
const path = require("node:path");
const WebSocket = require("ws");

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

class Navegador {
    /// `ancho` × `alto` is the size of the page. `carpeta` holds what a browser before it has kept.
    static async abre(ancho = 1366, alto = 768, carpeta = fs.mkdtempSync(path.join(os.tmpdir(), "numora-web-"))) {
        const navegador = new Navegador();
        Object.assign(navegador, { carpeta, bajados: path.join(carpeta, "bajados") });
        fs.rmSync(path.join(carpeta, "DevToolsActivePort"), { force: true });
        // Qt wants WebGL, which software has to draw here.
        navegador.proceso = spawn("chromium", ["--headless=new", "--no-sandbox", "--disable-dev-shm-usage",
            "--use-angle=swiftshader", "--enable-unsafe-swiftshader", "--ignore-gpu-blocklist",
            "--remote-debugging-port=0", `--user-data-dir=${navegador.carpeta}`, `--window-size=${ancho},${alto}`,
            "about:blank"], { stdio: "ignore" });
        const nota = path.join(navegador.carpeta, "DevToolsActivePort");
        const [puerto] = await hasta(() => fs.existsSync(nota) && fs.readFileSync(nota, "utf8").split("\n"),
            "the browser's debugging port");
        const paginas = await (await hasta(() => fetch(`http://127.0.0.1:${puerto}/json`).catch(() => null),
            "the browser's pages")).json();
        await navegador.conecta(paginas.find((pagina) => pagina.type === "page").webSocketDebuggerUrl);
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
        return new Promise((listo, mal) => this.enchufe.on("open", listo).on("error", mal)).then(() =>
            Promise.all(["Page", "Runtime", "Log", "Network"].map((parte) => this.manda(`${parte}.enable`))));
    }

    oye(mensaje) {
        if (mensaje.id) {
            const { listo, mal } = this.esperan.get(mensaje.id);
            this.esperan.delete(mensaje.id);
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

    /// Opens an address and waits until the program's main window has been painted; how long that took, in ms.
    async visita(direccion) {
        await this.manda("Page.navigate", { url: "about:blank" });
        await this.manda("Page.navigate", { url: direccion });
        const pintada = `new Promise((listo) => {
            const mira = () => window.numora && window.numora.lista()
                ? requestAnimationFrame(() => requestAnimationFrame(() => listo(performance.now())))
                : setTimeout(mira, 5);
            mira();
        })`;
        const tarde = espera(120000).then(() => { throw new Error(`no program at ${direccion}`); });
        return Math.round(await Promise.race([this.evalua(pintada), tarde]));
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

    /// Lets this browser go before whatever else the machine does, where that is allowed: for what is measured in time.
    adelanta() {
        const padres = new Map();
        for (const pid of fs.readdirSync("/proc").filter((uno) => /^[0-9]+$/.test(uno))) {
            try {
                padres.set(Number(pid), Number(/\) . ([0-9]+)/.exec(fs.readFileSync(`/proc/${pid}/stat`, "utf8"))[1]));
            } catch { /* it has ended */ }
        }
        const esMio = (pid) => pid === this.proceso.pid || (padres.has(pid) && esMio(padres.get(pid)));
        for (const pid of [...padres.keys()].filter(esMio)) {
            try {
                for (const hilo of fs.readdirSync(`/proc/${pid}/task`))
                    os.setPriority(Number(hilo), -15);
            } catch { /* it has ended, or it is not allowed */ }
        }
    }

    /// Without a word of warning to the page.
    mata() {
        this.enchufe.close();
        this.proceso.kill("SIGKILL");
        return espera(1000);
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
        this.proceso.kill();
        return espera(500).then(() => fs.rmSync(this.carpeta, { recursive: true, force: true, maxRetries: 5 }));
    }
}

module.exports = { Navegador, espera, hasta };
