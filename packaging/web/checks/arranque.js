// SPDX-License-Identifier: GPL-3.0-or-later
// How the page begins: in what time, what it tells meanwhile, and what its address says.
"use strict";

const { sirve } = require("./servidor.js");

module.exports = async (prueba) => {
    const { comprueba, direccion, hasta, igual } = prueba;

    /// The quickest of five visits, in ms, the two pages in turn.
    async function masRapidas(direcciones) {
        const tiempos = direcciones.map(() => Infinity);
        const delante = setInterval(() => prueba.navegador.adelanta(), 200);
        for (let vez = 0; vez < 5; ++vez) {
            for (const [i, una] of direcciones.entries())
                tiempos[i] = Math.min(tiempos[i], await prueba.navegador.visita(una));
        }
        clearInterval(delante);
        return tiempos;
    }

    await prueba.abre();
    await comprueba("loading", "tells how far it has come", async () => {
        await prueba.navegador.frena(4e6);
        await prueba.navegador.manda("Page.navigate", { url: direccion });
        const dichos = new Set();
        await hasta(async () => {
            dichos.add(await prueba.navegador.evalua('document.getElementById("estado")?.textContent ?? ""'));
            return [...dichos].filter((uno) => /^Se carga el programa: \d+,\d de \d+,\d MB$/.test(uno)).length > 1;
        }, "two sentences of progress");
        await prueba.retrata("loading");
        igual(await prueba.navegador.evalua('document.getElementById("estado").getAttribute("aria-live")'), "polite");
        igual(await prueba.navegador.evalua('document.getElementById("nota").textContent.includes("clave privada")'), true);
        await prueba.navegador.frena(0);
    });
    await comprueba("start", "first window", async () => {
        const { servidor, direccion: otra } = await sirve(prueba.vacia);
        const [propio, minimo] = await masRapidas([direccion, otra]);
        servidor.close();
        prueba.dice(`first window after ${propio} ms, of an empty program after ${minimo} ms`);
        return propio <= 3 * minimo ? "" : "more than three times as long as an empty program";
    });
    await comprueba("start", "Spanish, light, of the size of desktops", async () => {
        await prueba.navegador.visita(direccion);
        await prueba.retrata("welcome");
        igual((await prueba.navegador.pide("menus")).includes("&Archivo"), true);
        igual(await prueba.navegador.pide("oscuro"), false);
        igual(await prueba.navegador.pide("puntos"), 10);
        igual(await prueba.navegador.evalua("document.documentElement.lang"), "es");
    });
    await comprueba("address", "English, dark, a link with values", async () => {
        await prueba.navegador.visita(`${direccion}?i=English&oscuro#primos/factorizacion?TxtN=2^67-1`);
        await hasta(() => prueba.navegador.pide("titulo"), "the lesson");
        igual(await prueba.navegador.pide("titulo"), "Primes");
        const menus = (await prueba.navegador.pide("menus")).split("\n");
        for (const texto of ["&File", "&Data", "&Dark colours", "&Save a copy of everything…"])
            igual(menus.includes(texto), true);
        igual(await prueba.navegador.pide("oscuro"), true);
        igual(await prueba.navegador.pide("lee", "TxtN"), "2^67-1");
        igual(await prueba.navegador.evalua("document.documentElement.lang"), "en");
        await prueba.retrata("dark-english");
    });
    await comprueba("address", "a changed one leads on", async () => {
        await prueba.navegador.evalua('location.hash = "#euclides/diofantica"');
        await hasta(async () => await prueba.navegador.pide("titulo") === "Euclid", "the other lesson");
    });
    await comprueba("address", "one that names nothing says so", async () => {
        await prueba.navegador.evalua('location.hash = "#euclides/nada"');
        await hasta(async () => (await prueba.navegador.pide("contesta", "OK")).includes("nada"), "the sentence");
    });
    await comprueba("second tab", "says that there is a first, and opens when that one is closed", async () => {
        const otra = await prueba.navegador.otraPestana(direccion);
        await hasta(async () => /ya está abierto/.test(await otra.evalua('document.querySelector("[role=alert]")?.textContent')),
            "the sentence");
        await prueba.navegador.navega("about:blank");
        await hasta(() => otra.evalua("Boolean(window.numora?.lista())"), "the program in the second tab");
        await otra.manda("Page.close");
    });
};
