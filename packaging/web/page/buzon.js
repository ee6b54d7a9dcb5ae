// SPDX-License-Identifier: GPL-3.0-or-later
// The mailbox in a folder of the machine that the student grants: messages and public keys go both ways.
"use strict";

function creaBuzon(modulo) {
    const { FS } = modulo;
    const entreMiradas = 2000;
    // After so many looks in a row that have failed, the folder counts as gone.
    const masFallos = 3;
    const esMensaje = (nombre) => /^RSA[0-9A-F]+\.msg$/i.test(nombre);
    const interesa = (nombre) => esMensaje(nombre) || nombre.toUpperCase() === "CLAVE.RSA";
    const mayorArchivo = 1 << 26;

    const nombres = (ruta) => FS.readdir(ruta).filter((uno) => uno !== "." && uno !== "..");
    const iguales = (a, b) => a.length === b.length && a.every((uno, i) => uno === b[i]);
    const horaDe = (ruta) => FS.stat(ruta).mtime.getTime();

    /// The files of a folder that concern the mailbox, by their names.
    async function archivosDe(carpeta) {
        const hallados = new Map();
        for await (const [nombre, asa] of carpeta.entries()) {
            if (asa.kind === "file" && interesa(nombre))
                hallados.set(nombre, asa);
        }
        return hallados;
    }

    async function escribe(carpeta, nombre, bytes) {
        // Written beside it, and in its place when all is there.
        const salida = await (await carpeta.getFileHandle(nombre, { create: true })).createWritable();
        await salida.write(bytes);
        await salida.close();
    }

    /// The first number that no message has here.
    function nombreLibre(ruta) {
        const ocupados = new Set(nombres(ruta).map((uno) => uno.toUpperCase()));
        for (let numero = 1; ; ++numero) {
            const nombre = `RSA${numero.toString(16).toUpperCase()}.msg`;
            if (!ocupados.has(nombre.toUpperCase()))
                return nombre;
        }
    }

    /// A page cannot claim a name before it writes. So a message takes a number made of its contents: whoever takes the same
    /// one at the same moment writes the same message. What counts from 1 upward, as the program does, never comes so far.
    async function nombreDe(bytes) {
        const huella = new Uint8Array(await crypto.subtle.digest("SHA-256", bytes)).subarray(0, 7);
        const cifras = [...huella].map((uno) => uno.toString(16).padStart(2, "0")).join("").toUpperCase();
        return `RSA1${cifras}.msg`;
    }

    let union, ocupado = false;

    const mensajesDe = (ruta) => nombres(ruta).filter(esMensaje).map((nombre) => ({ nombre, bytes: FS.readFile(`${ruta}/${nombre}`) }));

    async function trae({ propia, vistos, llevados }, usuario, suya) {
        const ruta = `${propia}/${usuario}`;
        let aqui;
        for (const [nombre, asa] of await archivosDe(suya)) {
            const archivo = await asa.getFile(), clave = `${usuario}/${nombre}`;
            const senal = `${archivo.size} ${archivo.lastModified}`;
            // An empty one is about to be written.
            if (vistos.get(clave) === senal || archivo.size === 0 || archivo.size > mayorArchivo)
                continue;
            const bytes = new Uint8Array(await archivo.arrayBuffer());
            aqui ??= mensajesDe(ruta);
            // It may be here already under another number, and another one under its number.
            let sitio = esMensaje(nombre) && aqui.find((uno) => iguales(uno.bytes, bytes))?.nombre;
            if (!sitio) {
                sitio = aqui.some((uno) => uno.nombre.toUpperCase() === nombre.toUpperCase()) ? nombreLibre(ruta) : nombre;
                FS.writeFile(`${ruta}/${sitio}`, bytes);
                aqui.push({ nombre: sitio, bytes });
            }
            llevados.set(`${usuario}/${sitio}`, horaDe(`${ruta}/${sitio}`));
            vistos.set(clave, senal);
        }
    }

    async function lleva({ propia, vistos, llevados }, usuario, suya) {
        for (const nombre of nombres(`${propia}/${usuario}`).filter(interesa)) {
            const clave = `${usuario}/${nombre}`, hora = horaDe(`${propia}/${clave}`);
            if (llevados.get(clave) === hora)
                continue;
            const bytes = FS.readFile(`${propia}/${clave}`);
            const alli = esMensaje(nombre) ? await nombreDe(bytes) : nombre;
            await escribe(suya, alli, bytes);
            const archivo = await (await suya.getFileHandle(alli)).getFile();
            vistos.set(`${usuario}/${alli}`, `${archivo.size} ${archivo.lastModified}`);
            llevados.set(clave, hora);
        }
    }

    async function mira(una) {
        const { carpeta, propia } = una;
        const usuarios = new Set(nombres(propia).filter((uno) => FS.isDir(FS.stat(`${propia}/${uno}`).mode)));
        for await (const [nombre, asa] of carpeta.entries()) {
            if (asa.kind === "directory" && !nombre.startsWith("."))
                usuarios.add(nombre);
        }
        for (const usuario of usuarios) {
            FS.mkdirTree(`${propia}/${usuario}`);
            const suya = await carpeta.getDirectoryHandle(usuario, { create: true });
            await trae(una, usuario, suya);
            await lleva(una, usuario, suya);
        }
    }

    async function vuelveAMirar() {
        if (ocupado)
            return;
        ocupado = true;
        const una = union;
        try {
            await mira(una);
            una.fallos = 0;
        } catch (error) {
            console.warn(error);
            if (++una.fallos === masFallos && una === union) {
                clearInterval(buzon.ronda);
                modulo.buzonUnido("");
            }
        }
        ocupado = false;
    }

    const buzon = {
        puedeElegir: () => Boolean(window.showDirectoryPicker),

        /// Asks for a folder of the machine and joins it with `ruta`; its name, or "" where none was granted.
        async elige(ruta) {
            try {
                const elegida = await window.showDirectoryPicker({ id: "numora-buzon", mode: "readwrite" });
                await buzon.une(elegida, ruta);
                modulo.buzonUnido(elegida.name);
            } catch (error) {
                if (error.name !== "AbortError")
                    modulo.buzonUnido("");
            }
        },

        /// Joins a folder that is granted already.
        async une(otra, ruta) {
            clearInterval(buzon.ronda);
            // Of what is there, how it looked when it was read; of what is here, when it was written.
            union = { carpeta: otra, propia: ruta, vistos: new Map(), llevados: new Map(), fallos: 0 };
            await mira(union);
            buzon.ronda = setInterval(vuelveAMirar, entreMiradas);
        },
    };
    return buzon;
}
