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

    const existe = (ruta) => FS.analyzePath(ruta).exists;
    const nombres = (ruta) => FS.readdir(ruta).filter((uno) => uno !== "." && uno !== "..");
    const iguales = (a, b) => a.length === b.length && a.every((uno, i) => uno === b[i]);

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

    /// The first number that neither side has.
    function nombreLibre(ocupados) {
        for (let numero = 1; ; ++numero) {
            const nombre = `RSA${numero.toString(16).toUpperCase()}.msg`;
            if (!ocupados.has(nombre))
                return nombre;
        }
    }

    /// Nobody can claim a name here as long as it is not there: it is looked for at the last moment.
    async function estaAlli(carpeta, nombre) {
        try {
            await carpeta.getFileHandle(nombre);
            return true;
        } catch (error) {
            if (error.name === "NotFoundError")
                return false;
            throw error;
        }
    }

    let carpeta, propia, conocidos, ocupado = false, fallos = 0;

    async function trae(usuario, ellos) {
        for (const [nombre, asa] of ellos) {
            const archivo = await asa.getFile(), clave = `${usuario}/${nombre}`;
            const senal = `${archivo.size} ${archivo.lastModified}`;
            if (conocidos.get(clave) === senal || archivo.size > mayorArchivo)
                continue;
            const bytes = new Uint8Array(await archivo.arrayBuffer()), ruta = `${propia}/${clave}`;
            // A message of ours that nobody has fetched yet keeps its place under another number.
            if (esMensaje(nombre) && existe(ruta) && !conocidos.has(clave) && !iguales(FS.readFile(ruta), bytes))
                FS.rename(ruta, `${propia}/${usuario}/${nombreLibre(new Set([...ellos.keys(), ...nombres(`${propia}/${usuario}`)]))}`);
            FS.writeFile(ruta, bytes);
            conocidos.set(clave, senal);
            conocidos.set(`${clave}|aqui`, FS.stat(ruta).mtime.getTime());
        }
    }

    async function lleva(usuario, suya) {
        for (const nombre of nombres(`${propia}/${usuario}`).filter(interesa)) {
            const clave = `${usuario}/${nombre}`, hora = FS.stat(`${propia}/${clave}`).mtime.getTime();
            if (conocidos.get(`${clave}|aqui`) === hora)
                continue;
            // Another's that has come since the folder was listed: at the next look ours gets another number.
            if (esMensaje(nombre) && !conocidos.has(clave) && await estaAlli(suya, nombre))
                continue;
            await escribe(suya, nombre, FS.readFile(`${propia}/${clave}`));
            const archivo = await (await suya.getFileHandle(nombre)).getFile();
            conocidos.set(clave, `${archivo.size} ${archivo.lastModified}`);
            conocidos.set(`${clave}|aqui`, hora);
        }
    }

    async function mira() {
        const usuarios = new Set(nombres(propia).filter((uno) => FS.isDir(FS.stat(`${propia}/${uno}`).mode)));
        for await (const [nombre, asa] of carpeta.entries()) {
            if (asa.kind === "directory" && !nombre.startsWith("."))
                usuarios.add(nombre);
        }
        for (const usuario of usuarios) {
            FS.mkdirTree(`${propia}/${usuario}`);
            const suya = await carpeta.getDirectoryHandle(usuario, { create: true });
            const ellos = await archivosDe(suya);
            await trae(usuario, ellos);
            await lleva(usuario, suya);
        }
    }

    async function vuelveAMirar() {
        if (ocupado)
            return;
        ocupado = true;
        try {
            await mira();
            fallos = 0;
        } catch (error) {
            console.warn(error);
            if (++fallos === masFallos) {
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
            [carpeta, propia, conocidos, fallos] = [otra, ruta, new Map(), 0];
            await mira();
            buzon.ronda = setInterval(vuelveAMirar, entreMiradas);
        },
    };
    return buzon;
}
