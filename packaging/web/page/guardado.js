// SPDX-License-Identifier: GPL-3.0-or-later
// What the program keeps between visits: its folder of settings and data, in the browser's database.
"use strict";

/// `queja` is told once when the browser keeps nothing.
function creaGuardado(modulo, queja) {
    const { FS } = modulo;
    const casa = "/home/web_user";
    const entreCopias = 1500;
    // Written down while the page goes, when a database has no time any more.
    const ultimo = "numora.ultimo";
    const mayorUltimo = 4e6;
    // A private key stays on the machine on which it was made.
    const esPrivado = (ruta) => /\.RSA(\.propia)?$/i.test(ruta) && !ruta.includes("/Compartida/");

    let ocupado = false, quejado = false, cerrado = false;
    let conocidos = new Map();

    function archivos(carpeta = casa, hallados = new Map()) {
        for (const nombre of FS.readdir(carpeta).filter((uno) => uno !== "." && uno !== "..")) {
            const ruta = `${carpeta}/${nombre}`, estado = FS.stat(ruta);
            if (FS.isDir(estado.mode))
                archivos(ruta, hallados);
            else
                hallados.set(ruta, estado.mtime.getTime());
        }
        return hallados;
    }

    function enLetras(bytes) {
        let letras = "";
        for (let desde = 0; desde < bytes.length; desde += 0x8000)
            letras += String.fromCharCode(...bytes.subarray(desde, desde + 0x8000));
        return btoa(letras);
    }

    const enBytes = (letras) => Uint8Array.from(atob(letras), (letra) => letra.charCodeAt(0));

    function escribe(ruta, bytes, hora) {
        FS.mkdirTree(ruta.slice(0, ruta.lastIndexOf("/")));
        FS.writeFile(ruta, bytes);
        if (hora)
            FS.utime(ruta, hora, hora);
    }

    /// A file that another one takes the place of stays in this file system's table of names and comes back under its name
    /// when the other one is removed: it has to go first.
    function arreglaCambiosDeNombre() {
        const renombra = FS.rename;
        FS.rename = (antes, despues) => {
            const hay = FS.analyzePath(despues);
            if (antes !== despues && FS.analyzePath(antes).exists && hay.exists && FS.isFile(hay.object.mode))
                FS.unlink(despues);
            return renombra(antes, despues);
        };
    }

    function sincroniza(desdeElNavegador) {
        return new Promise((listo) => FS.syncfs(desdeElNavegador, (error) => {
            if (error && !quejado)
                queja(error);
            quejado = quejado || Boolean(error);
            listo(!error);
        }));
    }

    function olvidaUltimo() {
        try {
            localStorage.removeItem(ultimo);
        } catch { /* a browser that keeps nothing */ }
    }

    async function copia() {
        if (ocupado || cerrado)
            return;
        ocupado = true;
        const antes = archivos();
        if (await sincroniza(false)) {
            conocidos = antes;
            olvidaUltimo();
            document.documentElement.dataset.guardado = String(Date.now());
        }
        ocupado = false;
    }

    /// What the last visit wrote down while it ended.
    function recuperaUltimo() {
        const { puestos, quitados } = JSON.parse(localStorage.getItem(ultimo) ?? '{"puestos":[],"quitados":[]}');
        const hay = archivos();
        for (const [ruta, hora, letras] of puestos) {
            if (ruta.startsWith(`${casa}/`) && hora > (hay.get(ruta) ?? 0))
                escribe(ruta, enBytes(letras), hora);
        }
        for (const ruta of quitados.filter((una) => hay.has(una)))
            FS.unlink(ruta);
    }

    return {
        /// Brings back what was kept; before the program begins.
        async recupera() {
            arreglaCambiosDeNombre();
            FS.mkdirTree(casa);
            FS.mount(FS.filesystems.IDBFS, {}, casa);
            await sincroniza(true);
            conocidos = archivos();
            try {
                recuperaUltimo();
            } catch (error) {
                console.warn(error);
            }
        },

        /// From now on what changes is kept.
        vigila() {
            setInterval(copia, entreCopias);
        },

        copia,

        /// At once and without waiting: the page may be gone the next moment.
        apunta() {
            if (cerrado)
                return;
            const hay = archivos();
            const puestos = [...hay].filter(([ruta, hora]) => conocidos.get(ruta) !== hora)
                .map(([ruta, hora]) => [ruta, hora, enLetras(FS.readFile(ruta))]);
            const quitados = [...conocidos.keys()].filter((ruta) => !hay.has(ruta));
            const texto = JSON.stringify({ puestos, quitados });
            try {
                if (puestos.length + quitados.length > 0 && texto.length < mayorUltimo)
                    localStorage.setItem(ultimo, texto);
            } catch (error) {
                console.warn(error);
            }
        },

        /// Everything but private keys, as one text.
        todo() {
            const contenido = [...archivos().keys()].filter((ruta) => !esPrivado(ruta))
                .map((ruta) => [ruta.slice(casa.length + 1), enLetras(FS.readFile(ruta))]);
            return JSON.stringify({ numora: 1, archivos: Object.fromEntries(contenido) });
        },

        /// Puts such a text in the place of what is there, and begins anew; throws where it is none. Where the browser does
        /// not keep it, that is told and the page begins anew with what it had.
        async repon(texto) {
            const { numora, archivos: otros } = JSON.parse(texto);
            const nombres = Object.keys(otros ?? {});
            if (numora !== 1 || nombres.some((nombre) => /(^|\/)(\.\.?|)(\/|$)/.test(nombre) || esPrivado(nombre)))
                throw new Error("not a copy of what Numora keeps");
            const leidos = nombres.map((nombre) => [`${casa}/${nombre}`, enBytes(otros[nombre])]);
            // The program would write what it has open over it.
            cerrado = true;
            for (const ruta of [...archivos().keys()].filter((una) => !esPrivado(una)))
                FS.unlink(ruta);
            for (const [ruta, bytes] of leidos)
                escribe(ruta, bytes);
            quejado = false;
            if (await sincroniza(false))
                olvidaUltimo();
            location.reload();
        },
    };
}
