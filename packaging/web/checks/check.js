// SPDX-License-Identifier: GPL-3.0-or-later
// The page in a real browser: node check.js FOLDER EMPTY [PICTURES]. FOLDER is build/web-checks, EMPTY the page of an
// empty program.
"use strict";

const fs = require("node:fs");
const path = require("node:path");
const { Navegador, hasta } = require("./navegador.js");
const { sirve } = require("./servidor.js");

const [carpeta, vacia, retratos] = process.argv.slice(2);
let navegador, fallos = 0, hechas = 0;

async function comprueba(nombre, hace) {
    const antes = Date.now();
    let falta = "";
    try {
        falta = (await hace()) ?? "";
    } catch (error) {
        falta = error.message;
    }
    const quejas = navegador.quejas.splice(0);
    if (quejas.length > 0)
        falta += ` console: ${quejas.join(" | ")}`;
    ++hechas;
    fallos += falta ? 1 : 0;
    console.log(`${falta ? "FAIL" : "ok  "} ${nombre} (${Date.now() - antes} ms)${falta ? `: ${falta}` : ""}`);
}

const retrata = (nombre) => retratos ? navegador.retrata(path.join(retratos, `${nombre}.png`)) : undefined;

/// A text without its blanks, with the minus of the keyboard, as the native check of the same links compares it.
const comparable = (texto) => texto.replace(/[\s\u00a0\u202f\u200b]/g, "").replaceAll("−", "-");

/// What the pages of the course promise of the links into the program: [{ pagina, lugar, pulsa, control, texto }].
/// The native program is held to the same promises by tst_Enlaces.
function promesas() {
    const entidades = { "&amp;": "&", "&lt;": "<", "&gt;": ">", "&quot;": '"' };
    const limpio = (texto) => texto.replace(/&(amp|lt|gt|quot);/g, (una) => entidades[una]);
    const doc = path.join(carpeta, "curso/Doc");
    return fs.readdirSync(doc).filter((nombre) => nombre.endsWith(".html")).flatMap((pagina) =>
        [...fs.readFileSync(path.join(doc, pagina), "utf8").matchAll(/<a\s[^>]*data-muestra="[^"]*"[^>]*>/g)].map(([marca]) => {
            const atributo = (nombre) => limpio((marca.match(new RegExp(`${nombre}="([^"]*)"`)) ?? [])[1] ?? "");
            const muestra = atributo("data-muestra"), corte = muestra.indexOf("=");
            return { pagina, lugar: atributo("href").replace("numora:", ""), pulsa: atributo("data-pulsa"),
                control: muestra.slice(0, corte), texto: comparable(muestra.slice(corte + 1)) };
        }).filter(({ lugar }) => lugar));
}

async function cumple({ lugar, pulsa, control, texto }) {
    const dicho = await navegador.pide("sigue", lugar);
    if (dicho)
        return dicho;
    for (const boton of pulsa.split(" ").filter(Boolean)) {
        if (!await navegador.pide("pulsa", boton))
            return `${boton} cannot be pressed`;
    }
    let leido = "";
    await hasta(async () => {
        leido = comparable(await navegador.pide("lee", control));
        return leido.includes(texto);
    }, `${control} shows ${texto}`, 30000).catch(async (error) => {
        throw new Error(`${error.message}; it shows ${leido.slice(0, 200)}`);
    });
    await navegador.pide("deten");
    return "";
}

/// Until what is written now has been kept by the browser.
async function guardado() {
    const ahora = await navegador.evalua("Date.now()");
    await hasta(() => navegador.evalua(`Number(document.documentElement.dataset.guardado) > ${ahora} + 1600`),
        "the browser keeps what is written");
}

/// The quickest of three visits, in ms.
async function masRapida(direccion) {
    const tiempos = [];
    for (let vez = 0; vez < 3; ++vez)
        tiempos.push(await navegador.visita(direccion));
    return Math.min(...tiempos);
}

async function arranque(direccion) {
    const { servidor, direccion: otra } = await sirve(vacia);
    const minimo = await masRapida(otra);
    servidor.close();
    const propio = await masRapida(direccion);
    console.log(`     first window after ${propio} ms, of an empty program after ${minimo} ms`);
    await retrata("welcome");
    return propio <= 3 * minimo ? "" : "more than three times as long as an empty program";
}

async function todo() {
    const { servidor, direccion } = await sirve(carpeta);
    navegador = await Navegador.abre();
    await comprueba("loads", () => arranque(direccion));
    const lugares = (await navegador.pide("lugares")).split("\n");
    for (const lugar of lugares) {
        await comprueba(`opens ${lugar}`, async () => {
            const dicho = await navegador.pide("sigue", lugar);
            await retrata(lugar.replace("/", "-"));
            // Topics of a key and a mailbox wait until there is one.
            return lugar.startsWith("rsa/") && lugar !== "rsa/clave" ? "" : dicho;
        });
    }
    const vistas = new Map();
    for (const promesa of promesas()) {
        const cuantas = vistas.get(promesa.pagina) ?? 0;
        vistas.set(promesa.pagina, cuantas + 1);
        await comprueba(`${promesa.pagina} ${promesa.lugar}`, () => cumple(promesa));
    }
    await comprueba("address: language, dark, a link with values", async () => {
        await navegador.visita(`${direccion}?i=English&oscuro#primos/factorizacion?TxtN=2^67-1`);
        await hasta(async () => await navegador.pide("titulo") === "Primes" || await navegador.pide("titulo"), "the lesson");
        await retrata("dark-english");
        return await navegador.pide("lee", "TxtN") === "2^67-1" ? "" : `TxtN holds ${await navegador.pide("lee", "TxtN")}`;
    });
    await comprueba("a changed address leads on", async () => {
        await navegador.evalua('location.hash = "#euclides/diofantica"');
        await hasta(async () => (await navegador.pide("lee", "txtNº_0")) !== "no such control", "the other lesson");
    });
    await comprueba("a reload keeps the sheet", async () => {
        await navegador.pide("sigue", "minical/hoja?A1=7/3");
        await guardado();
        await navegador.visita(direccion);
        const dicho = await navegador.pide("sigue", "minical/hoja");
        return dicho || comparable(await navegador.pide("lee", "A1")) === "7/3" ? dicho : `A1 holds ${await navegador.pide("lee", "A1")}`;
    });
    await comprueba("opens without a network", async () => {
        await hasta(() => navegador.evalua("navigator.serviceWorker.ready.then((servicio) => Boolean(servicio.active))"), "the service");
        await new Promise((listo) => {
            servidor.close(listo);
            servidor.closeAllConnections();
        });
        await navegador.visita(direccion);
        return navegador.pide("sigue", "primos/criba");
    });
    await navegador.cierra();
    console.log(`${hechas - fallos} passed, ${fallos} failed`);
    return fallos;
}

todo().then((malos) => process.exit(malos ? 1 : 0), (error) => {
    console.error(error);
    process.exit(1);
});
