// SPDX-License-Identifier: GPL-3.0-or-later
// The page in a real browser: node check.js FOLDER EMPTY [PICTURES]. FOLDER is build/web-checks, EMPTY the page of an
// empty program. Ends with a line for each group of checks: its name, and "ok" or "FAILED".
"use strict";

const path = require("node:path");
const { Navegador, espera, hasta } = require("./navegador.js");
const { sirve } = require("./servidor.js");

const [carpeta, vacia, retratos] = process.argv.slice(2);
const grupos = new Map();
const prueba = { carpeta, vacia, espera, hasta };

/// One check: what it throws or gives as a text is what is wrong, and so is an error on the console meanwhile.
prueba.comprueba = async (grupo, nombre, hace) => {
    const antes = Date.now();
    let falta = "";
    try {
        falta = (await hace()) ?? "";
    } catch (error) {
        falta = error.message;
    }
    const quejas = prueba.navegador.quejas.splice(0);
    if (quejas.length > 0)
        falta += ` console: ${quejas.join(" | ")}`;
    grupos.set(grupo, (grupos.get(grupo) ?? true) && !falta);
    console.log(`    ${grupo}: ${nombre} (${Date.now() - antes} ms)${falta ? ` WRONG: ${falta}` : ""}`);
};

prueba.dice = (texto) => console.log(`    ${texto}`);

prueba.retrata = async (nombre) => {
    if (!retratos)
        return;
    await espera(500);
    await prueba.navegador.retrata(path.join(retratos, `${nombre}.png`));
};

/// Says that two values are the same.
prueba.igual = (hay, debe) => {
    if (hay !== debe)
        throw new Error(`${JSON.stringify(hay)} instead of ${JSON.stringify(debe)}`);
};

/// A text without its blanks, with the minus of the keyboard, as the native check of the same links compares it.
prueba.comparable = (texto) => texto.replace(/[\s\u00a0\u202f\u200b]/g, "").replaceAll("−", "-");

/// Another browser, as of somebody who comes for the first time.
prueba.abre = async (ancho, alto) => {
    if (prueba.navegador)
        await prueba.navegador.cierra();
    prueba.navegador = await Navegador.abre(ancho, alto);
};

async function todo() {
    const { servidor, direccion } = await sirve(carpeta);
    Object.assign(prueba, { servidor, direccion });
    const partes = process.env.NUMORA_PARTS?.split(" ") ?? ["arranque", "lecciones", "corridas", "guardado", "archivos", "dedos", "sinRed"];
    for (const parte of partes)
        await require(`./${parte}.js`)(prueba);
    await prueba.navegador.cierra();
    for (const [grupo, bien] of grupos)
        console.log(`${grupo} ${bien ? "ok" : "FAILED"}`);
    return [...grupos.values()].every(Boolean);
}

todo().then((bien) => process.exit(bien ? 0 : 1), (error) => {
    console.error(error);
    process.exit(1);
});
