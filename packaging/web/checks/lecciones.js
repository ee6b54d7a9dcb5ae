// SPDX-License-Identifier: GPL-3.0-or-later
// Every lesson and topic opens, and the tasks of the course's pages give what the native program gives.
"use strict";

const fs = require("node:fs");
const path = require("node:path");

/// What the pages promise of their links into the program: [{ pagina, lugar, pulsa, control, texto }]. The native program
/// is held to the same promises by tst_Enlaces.
function promesas({ carpeta, comparable }) {
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

module.exports = async (prueba) => {
    const { comprueba, comparable, direccion, hasta } = prueba;

    async function cumple({ lugar, pulsa, control, texto }) {
        const dicho = await prueba.navegador.pide("sigue", lugar);
        if (dicho)
            return dicho;
        for (const boton of pulsa.split(" ").filter(Boolean)) {
            if (!await prueba.navegador.pide("pulsa", boton))
                return `${boton} cannot be pressed`;
        }
        let leido = "";
        await hasta(async () => {
            leido = comparable(await prueba.navegador.pide("lee", control));
            return leido.includes(texto);
        }, `${control} shows ${texto}`, 60000).catch(async (error) => {
            throw new Error(`${error.message}; it shows ${leido.slice(0, 200)}`);
        });
        await prueba.navegador.pide("deten");
        return "";
    }

    await prueba.abre();
    await prueba.navegador.visita(direccion);
    const lugares = (await prueba.navegador.pide("lugares")).split("\n");
    for (const lugar of lugares) {
        await comprueba("lessons", lugar, async () => {
            const dicho = await prueba.navegador.pide("sigue", lugar);
            await prueba.retrata(lugar.replace("/", "-"));
            // Topics of a key and a mailbox wait until there is one.
            return lugar.startsWith("rsa/") && lugar !== "rsa/clave" ? "" : dicho;
        });
    }
    const todas = promesas(prueba), vistas = new Set();
    for (const promesa of todas) {
        // Of each page one in each topic; all of them with NUMORA_ALL.
        const cual = `${promesa.pagina} ${promesa.lugar.replace(/\?.*/, "")}`;
        if (!process.env.NUMORA_ALL && vistas.has(cual))
            continue;
        vistas.add(cual);
        await comprueba("tasks", `${promesa.pagina} ${promesa.lugar}`, () => cumple(promesa));
    }
};
