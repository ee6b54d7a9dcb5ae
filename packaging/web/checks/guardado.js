// SPDX-License-Identifier: GPL-3.0-or-later
// What is there again after a reload, and what is brought back from a copy.
"use strict";

const fs = require("node:fs");
const os = require("node:os");
const path = require("node:path");

module.exports = async (prueba) => {
    const { comprueba, comparable, direccion, hasta, igual } = prueba;
    const pide = (...algo) => prueba.navegador.pide(...algo);

    /// Opens the sheet and takes its draft up again.
    async function recuperaHoja() {
        igual(await pide("sigue", "minical/hoja"), "");
        await hasta(async () => /sin guardar/.test(await pide("contesta", "No")), "the question about the draft", 10000);
        await hasta(async () => comparable(await pide("lee", "A1")) === "7/3", "A1 with 7/3", 5000);
    }

    async function historia() {
        await pide("practica", "euclides");
        igual(await pide("abreTema", "historia"), true);
        return pide("lee", "FlexHistoria");
    }

    async function responde() {
        await pide("practica", "euclides");
        igual(await pide("escribe", "txtRespuesta", "12345"), true);
        igual(await pide("pulsa", "cmdComprobar"), true);
        await hasta(() => pide("lee", "lblVeredicto"), "the verdict");
    }

    await prueba.abre();
    await prueba.navegador.visita(direccion);
    await comprueba("kept", "settings, practice and sheet over a reload at once", async () => {
        igual(await historia(), "");
        igual(await pide("sigue", "minical/hoja?A1=7/3"), "");
        await responde();
        igual(await pide("ordena", "Letra más &grande"), true);
        await prueba.navegador.visita(direccion);
        igual(await pide("puntos"), 11);
        igual(/Euclides|máximo común divisor/i.test(await historia()), true);
        await recuperaHoja();
    });
    await comprueba("kept", "the same over a browser that is killed", async () => {
        await hasta(() => prueba.navegador.evalua("Number(document.documentElement.dataset.guardado) > 0"), "the browser keeps it");
        await prueba.espera(7000);
        await prueba.navegador.mata();
        prueba.navegador = await prueba.navegador.otroComo();
        await prueba.navegador.visita(direccion);
        igual(await pide("puntos"), 11);
        igual(/Euclides|máximo común divisor/i.test(await historia()), true);
        await recuperaHoja();
    });
    await comprueba("copies", "a copy brings everything back, elsewhere", async () => {
        const bajado = await prueba.navegador.baja(() => pide("ordena", "&Guardar una copia de todo…"));
        igual(/\.numora$/.test(bajado.nombre), true);
        igual(/RSA"|\.propia/.test(Object.keys(JSON.parse(bajado.texto).archivos).join()), false);
        await hasta(async () => /clave privada/.test(await pide("contesta", "Aceptar")), "what the copy holds");
        const copia = path.join(os.tmpdir(), `numora-web-${process.pid}.numora`);
        fs.copyFileSync(bajado.archivo, copia);
        await prueba.abre();
        await prueba.navegador.visita(direccion);
        igual(await pide("puntos"), 10);
        igual(await pide("ordena", "&Reponer una copia…"), true);
        await prueba.navegador.sube(copia,
            () => hasta(async () => /ocupará el lugar/.test(await pide("contesta", "Sí")), "the question"));
        const vuelve = async () => await prueba.navegador.evalua("Boolean(window.numora?.lista())") && await pide("puntos") === 11;
        // Between two pages there is none that could answer.
        await hasta(() => vuelve().catch(() => false), "the page anew, with larger type");
        fs.rmSync(copia);
        igual(/Euclides|máximo común divisor/i.test(await historia()), true);
        await recuperaHoja();
    });
    await comprueba("copies", "another file changes nothing", async () => {
        igual(await pide("ordena", "&Reponer una copia…"), true);
        await prueba.navegador.sube(__filename,
            () => hasta(async () => /ocupará el lugar/.test(await pide("contesta", "Sí")), "the question"));
        await hasta(async () => /no es una copia/.test(await pide("contesta", "Aceptar")), "the refusal");
        igual(await pide("puntos"), 11);
    });
};
