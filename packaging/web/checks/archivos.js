// SPDX-License-Identifier: GPL-3.0-or-later
// Files that go out and come in: the sheet, and the mailbox's messages and keys.
"use strict";

const fs = require("node:fs");
const os = require("node:os");
const path = require("node:path");

module.exports = async (prueba) => {
    const { comprueba, comparable, direccion, hasta, igual } = prueba;
    const pide = (...algo) => prueba.navegador.pide(...algo);
    const buzon = "/home/web_user/.local/share/Numora/Compartida";
    const hay = (ruta) => prueba.navegador.evalua(`numora.FS.analyzePath(${JSON.stringify(ruta)}).exists`);

    /// A key of 16 bits, published.
    async function ponClave() {
        igual(await pide("sigue", "rsa/clave?txtQ_1=257&txtQ_2=263&txtS=5&txtR=1"), "");
        for (const [campo, valor] of [["txtQ_1", "257"], ["txtQ_2", "263"], ["txtS", "5"], ["txtR", "1"]])
            await pide("entra", campo, valor);
        await hasta(async () => /OK/.test(await pide("lee", "lblEstado")), "the key", 20000);
        igual(await pide("pulsa", "cmdPublicarClave"), true);
    }

    await prueba.abre();
    await prueba.navegador.visita(direccion);
    await comprueba("sheet", "saved as a download and opened from a file", async () => {
        igual(await pide("sigue", "minical/hoja?A1=2^64&A2=A1%2B1/3"), "");
        const bajado = await prueba.navegador.baja(() => pide("pulsa", "Guardar"));
        igual(/\.minical$/.test(bajado.nombre), true);
        await prueba.navegador.visita(direccion);
        igual(await pide("sigue", "minical/hoja"), "");
        // Saved: nothing is offered.
        await prueba.espera(1500);
        igual(await pide("contesta", ""), "");
        await prueba.navegador.sube(bajado.archivo, () => pide("pulsa", "Abrir"));
        await hasta(async () => comparable(await pide("lee", "A1")) === String(2n ** 64n), "A1", 10000);
        igual(comparable(await pide("lee", "A2")), "55340232221128654849/3");
    });
    await comprueba("mailbox", "a message to oneself, out and in as files", async () => {
        await ponClave();
        igual(await hay("/home/web_user/.local/share/Numora/estudiante.RSA"), true);
        igual(await hay(`${buzon}/estudiante/Clave.RSA`), true);
        igual(await pide("sigue", "rsa/env-rec"), "");
        for (const [campo, valor] of [["cmbDestinatario", "estudiante"], ["txtAsunto", "Hola"], ["txtDestTextoOriginal", "Nos vemos"]])
            igual(await pide(campo === "cmbDestinatario" ? "entra" : "escribe", campo, valor), true);
        await hasta(() => pide("pulsa", "enviar"), "a message that can be sent", 5000);
        await hasta(() => hay(`${buzon}/estudiante/RSA1.msg`), "the message", 10000);
        await pide("ordena", "&Sacar del buzón un mensaje o una clave…");
        await hasta(() => pide("eligeEnLaCaja", "estudiante/RSA1.msg"), "the list");
        const bajado = await prueba.navegador.baja(() => pide("contesta", "Aceptar"));
        igual(bajado.nombre, "estudiante-RSA1.msg");
        await prueba.navegador.sube(bajado.archivo, () => pide("ordena", "&Traer al buzón un mensaje o una clave…"));
        await hasta(async () => /estudiante\/RSA2\.msg/.test(await pide("contesta", "Aceptar")), "where it has gone");
        igual(await hay(`${buzon}/estudiante/RSA2.msg`), true);
        igual(await pide("pulsa", "revisar"), true);
        await hasta(async () => /Hola/.test(await pide("lee", "FlexMensajes")), "the list of messages");
        await prueba.retrata("mailbox");
    });
    await comprueba("mailbox", "a private key is refused, and is there after a reload", async () => {
        const archivo = path.join(os.tmpdir(), `numora-web-${process.pid}.RSA`);
        fs.writeFileSync(archivo, "[RSA]\r\nq=67591\r\ns=5\r\nq(1)=257\r\n");
        await prueba.navegador.sube(archivo, () => pide("ordena", "&Traer al buzón un mensaje o una clave…"));
        await hasta(async () => /de quién es/.test(await pide("contesta", "")), "the question");
        await pide("escribeEnLaCaja", "ana");
        await pide("contesta", "Aceptar");
        await hasta(async () => /no es un mensaje ni una clave pública/.test(await pide("contesta", "Aceptar")), "the refusal");
        fs.rmSync(archivo);
        await prueba.navegador.visita(direccion);
        igual(await pide("sigue", "rsa/env-rec"), "");
    });
    /// Expressions of the page: a message put into somebody's folder; what stands there, "name: contents" a line.
    const pon = (quien, nombre, texto) => `await (async () => {
            const suya = await raiz.getDirectoryHandle("${quien}", { create: true });
            const salida = await (await suya.getFileHandle("${nombre}", { create: true })).createWritable();
            await salida.write("${texto}");
            await salida.close();
        })();`;
    const alla = () => prueba.navegador.evalua(`(async () => {
        const suya = await raiz.getDirectoryHandle("estudiante"), hay = [];
        for await (const [nombre, asa] of suya.entries())
            hay.push(\`\${nombre}: \${await (await asa.getFile()).text()}\`);
        return hay.sort();
    })()`);
    const aqui = () => prueba.navegador.evalua(`numora.FS.readdir("${buzon}/estudiante")
        .filter((uno) => uno.endsWith(".msg")).map((uno) => numora.FS.readFile("${buzon}/estudiante/" + uno, { encoding: "utf8" }))`);
    const deja = (nombre, texto) => `numora.FS.writeFile("${buzon}/estudiante/${nombre}", "${texto}");`;
    const une = `await numora.buzon.une(raiz, ${JSON.stringify(buzon)});`;
    const haz = (...ordenes) => prueba.navegador.evalua(`(async () => { ${ordenes.join("\n")} })()`);
    const cuantas = (lista, texto) => lista.filter((uno) => uno.endsWith(texto)).length;

    // The browser's own private folder has the same methods as one that is granted; a script can grant none.
    await comprueba("mailbox", "joined with a folder, both ways, as often as one joins it", async () => {
        await haz(`window.raiz = await (await navigator.storage.getDirectory()).getDirectoryHandle("curso", { create: true });`,
            pon("ana", "RSA1.msg", "eva\\r\\nPrueba\\r\\n1\\r\\n"), une);
        igual(await prueba.navegador.evalua(`numora.FS.readFile("${buzon}/ana/RSA1.msg", { encoding: "utf8" })`), "eva\r\nPrueba\r\n1\r\n");
        const antes = await aqui();
        const distintos = new Set(antes).size;
        igual((await alla()).length, distintos + 1);
        for (const texto of antes)
            igual(cuantas(await alla(), texto), 1);
        await haz(deja("RSA3.msg", "a\\r\\nb\\r\\n"));
        await hasta(async () => cuantas(await alla(), ": a\r\nb\r\n") === 1, "the third message", 10000);
        await haz(une);
        igual((await alla()).length, distintos + 2);
        igual((await aqui()).length, antes.length + 1);
    });
    await comprueba("mailbox", "two messages of one number at one moment are both kept, there and here", async () => {
        await haz(pon("estudiante", "RSA4.msg", "eva\\r\\najeno\\r\\n"), deja("RSA4.msg", "a\\r\\npropio\\r\\n"), une);
        for (const texto of ["eva\r\najeno\r\n", "a\r\npropio\r\n"]) {
            igual(cuantas(await alla(), `: ${texto}`), 1);
            igual(cuantas(await aqui(), texto), 1);
        }
        // What another one has begun to write is no message yet.
        const antes = (await aqui()).length;
        await haz(pon("estudiante", "RSA6.msg", ""), une);
        igual((await aqui()).length, antes);
    });
    await comprueba("mailbox", "a folder that goes away is told", async () => {
        await prueba.navegador.evalua(`(async () => {
            let miradas = 0;
            await numora.buzon.une({
                entries: () => {
                    if (++miradas > 1)
                        throw new DOMException("gone", "NotFoundError");
                    return raiz.entries();
                },
                getDirectoryHandle: (...cual) => raiz.getDirectoryHandle(...cual),
            }, ${JSON.stringify(buzon)});
        })()`);
        await hasta(async () => /no está unido/.test(await pide("contesta", "Aceptar")), "the box", 15000);
    });
};
