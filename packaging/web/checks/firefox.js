// SPDX-License-Identifier: GPL-3.0-or-later
// The page in Firefox, on the display that is there: node firefox.js FOLDER [PICTURE]. Driven by WebDriver BiDi, which it speaks
// without a helper. Ends with one line, as the groups of check.js do.
"use strict";

const fs = require("node:fs");
const os = require("node:os");
const path = require("node:path");
const WebSocket = require("ws");
const { hasta } = require("./navegador.js");
const { Proceso } = require("./proceso.js");
const { sirve } = require("./servidor.js");

const [carpeta, retrato] = process.argv.slice(2);

/// Where the browser says that it listens.
function puertoDe(perfil) {
    const nota = path.join(perfil, "WebDriverBiDiServer.json");
    try {
        return JSON.parse(fs.readFileSync(nota, "utf8")).ws_port;
    } catch { /* not written yet, or not wholly */
        return 0;
    }
}

class Zorro {
    static async abre() {
        const zorro = new Zorro();
        zorro.perfil = fs.mkdtempSync(path.join(os.tmpdir(), "numora-zorro-"));
        fs.writeFileSync(path.join(zorro.perfil, "user.js"), 'user_pref("webgl.force-enabled", true);\nuser_pref("gfx.webrender.software", true);\nuser_pref("webgl.out-of-process", false);\n');
        zorro.proceso = new Proceso("firefox-esr", ["--no-remote", "--profile", zorro.perfil, "--remote-debugging-port=0",
            "--width=1366", "--height=768", "about:blank"], zorro.perfil, { ...process.env, LIBGL_ALWAYS_SOFTWARE: "1" });
        const puerto = await hasta(() => puertoDe(zorro.perfil), "Firefox's port");
        zorro.enchufe = new WebSocket(`ws://127.0.0.1:${puerto}/session`, { maxPayload: 1 << 28 });
        await new Promise((listo, mal) => zorro.enchufe.on("open", listo).on("error", mal));
        zorro.esperan = new Map();
        zorro.quejas = [];
        zorro.enchufe.on("message", (texto) => zorro.oye(JSON.parse(texto)));
        await zorro.manda("session.new", { capabilities: {} });
        await zorro.manda("session.subscribe", { events: ["log.entryAdded"] });
        zorro.pagina = (await zorro.manda("browsingContext.getTree")).contexts[0].context;
        return zorro;
    }

    oye(mensaje) {
        if (mensaje.method === "log.entryAdded" && mensaje.params.level === "error")
            this.quejas.push(mensaje.params.text);
        const quien = this.esperan.get(mensaje.id);
        this.esperan.delete(mensaje.id);
        if (mensaje.type === "error")
            quien?.mal(new Error(mensaje.message));
        else
            quien?.listo(mensaje.result);
    }

    manda(method, params = {}) {
        const id = this.turno = (this.turno ?? 0) + 1;
        this.enchufe.send(JSON.stringify({ id, method, params }));
        return new Promise((listo, mal) => this.esperan.set(id, { listo, mal }));
    }

    async evalua(expression) {
        const { result, exceptionDetails } = await this.manda("script.evaluate",
            { expression, target: { context: this.pagina }, awaitPromise: true });
        if (exceptionDetails)
            throw new Error(exceptionDetails.text);
        return result.value;
    }

    pide(nombre, ...argumentos) {
        return this.evalua(`window.numora.${nombre}(${argumentos.map((uno) => JSON.stringify(uno)).join(", ")})`);
    }

    async visita(url) {
        await this.manda("browsingContext.navigate", { context: this.pagina, url, wait: "complete" });
        await hasta(() => this.evalua("Boolean(window.numora && window.numora.lista())"), "the program", 180000);
    }
}

async function prueba(zorro, direccion) {
    await zorro.visita(direccion);
    for (const lugar of (await zorro.pide("lugares")).split("\n")) {
        const dicho = await zorro.pide("sigue", lugar);
        if (dicho && !lugar.startsWith("rsa/"))
            throw new Error(`${lugar}: ${dicho}`);
    }
    await zorro.pide("sigue", "primos/factorizacion?OptAlgoritmo_2=1&TxtN=2^67-1");
    await zorro.pide("pulsa", "BtnFactoriza");
    await hasta(async () => /761838257287/.test(await zorro.pide("lee", "txtProductoDeFactores")), "the factors of 2^67-1");
    if (retrato)
        fs.writeFileSync(retrato, Buffer.from((await zorro.manda("browsingContext.captureScreenshot", { context: zorro.pagina })).data, "base64"));
    await zorro.pide("ordena", "Letra más &grande");
    await zorro.visita(`${direccion}?i=English`);
    if (await zorro.pide("puntos") !== 11)
        throw new Error("the type size was not kept");
    if (zorro.quejas.length > 0)
        throw new Error(`console: ${zorro.quejas.join(" | ")}`);
}

async function todo() {
    const { servidor, direccion } = await sirve(carpeta);
    const zorro = await Zorro.abre();
    let falta = "";
    try {
        await prueba(zorro, direccion);
    } catch (error) {
        falta = error.message;
    }
    if (falta)
        console.log(`    Firefox: WRONG: ${falta}`);
    console.log(`Firefox ${falta ? "FAILED" : "ok"}`);
    await zorro.proceso.cierra();
    servidor.close();
    return !falta;
}

todo().then((bien) => process.exit(bien ? 0 : 1), (error) => {
    console.error(error);
    process.exit(1);
});
