// SPDX-License-Identifier: GPL-3.0-or-later
// Loads the program, tells of it in words, and keeps what it writes.
"use strict";

(() => {
    // How many bytes come, put here by the build: a server that compresses does not tell.
    const bytes = { "numora.wasm": 0, "numora.data": 0 };
    const esperaALaOtra = 2000;

    const consulta = new URLSearchParams(location.search);
    const idioma = consulta.get("i") === "English" ? 1 : 0;
    const textos = {
        nota: ["Lo que haga se guarda en este navegador y no se envía a nadie. Su clave privada no sale de este equipo.",
            "What you do is kept in this browser and sent to nobody. Your private key does not leave this machine."],
        lema: ["Matemática discreta, paso a paso", "Discrete mathematics, step by step"],
        llega: ["Se carga el programa: %1 de %2 MB", "Loading the program: %1 of %2 MB"],
        datos: ["Se recupera lo guardado…", "Bringing back what was kept…"],
        abre: ["Se abre el programa…", "Opening the program…"],
        otra: ["Numora ya está abierto en otra pestaña. En cuanto la cierre, se abrirá aquí.",
            "Numora is open in another tab. As soon as you close that one, it opens here."],
        red: ["No se ha podido cargar el programa. Compruebe la conexión y vuelva a intentarlo.",
            "The program could not be loaded. Check the connection and try again."],
        fallo: ["El programa se ha detenido por un fallo. Vuelva a cargar la página; lo guardado sigue ahí.",
            "The program has stopped because of a fault. Load the page again; what was kept is still there."],
        sinMemoria: ["Este navegador no deja guardar nada aquí: al cerrar la página se perderá lo hecho.",
            "This browser keeps nothing here: what you do is lost when the page is closed."],
    };
    const di = (clave) => textos[clave][idioma];

    const estado = document.getElementById("estado");
    const avance = document.getElementById("avance");
    const pantalla = document.getElementById("pantalla");

    function falla(clave, error) {
        if (error)
            console.error(error);
        document.getElementById("carga").hidden = false;
        pantalla.hidden = true;
        avance.hidden = true;
        estado.setAttribute("role", "alert");
        estado.textContent = di(clave);
    }

    function preparaPagina() {
        document.documentElement.lang = idioma ? "en" : "es";
        for (const clave of ["lema", "nota"])
            document.getElementById(clave).textContent = di(clave);
        const oscuro = consulta.has("oscuro") ? consulta.get("oscuro") !== "0"
            : matchMedia("(prefers-color-scheme: dark)").matches;
        document.documentElement.classList.toggle("oscuro", oscuro);
    }

    // ---- What is fetched, and how far it has come ----

    const recibidos = {};

    function muestraAvance() {
        const suma = (tabla) => Object.values(tabla).reduce((a, b) => a + b, 0);
        const total = suma(bytes), hasta = Math.min(suma(recibidos), total);
        const enMegas = (n) => (n / 1e6).toLocaleString(idioma ? "en" : "es",
            { minimumFractionDigits: 1, maximumFractionDigits: 1 });
        const parte = Math.floor(100 * hasta / total);
        if (parte === avance.value && parte > 0)
            return;
        avance.value = parte;
        // A screen reader is told each tenth, not each hundredth.
        if (parte % 10 === 0 || parte - (muestraAvance.dicho || 0) >= 10) {
            muestraAvance.dicho = parte;
            estado.textContent = di("llega").replace("%1", enMegas(hasta)).replace("%2", enMegas(total));
        }
    }

    async function trae(nombre) {
        const respuesta = await fetch(nombre);
        if (!respuesta.ok)
            throw new Error(nombre + ": " + respuesta.status);
        recibidos[nombre] = 0;
        const contador = new TransformStream({
            transform(trozo, salida) {
                recibidos[nombre] += trozo.byteLength;
                muestraAvance();
                salida.enqueue(trozo);
            },
        });
        return new Response(respuesta.body.pipeThrough(contador), { headers: respuesta.headers });
    }

    // ---- What is kept ----

    /// Before the program runs.
    function recupera(modulo) {
        modulo.guardado = creaGuardado(modulo, (error) => {
            console.warn(error);
            document.getElementById("nota").textContent = di("sinMemoria");
            alert(di("sinMemoria"));
        });
        modulo.buzon = creaBuzon(modulo);
        modulo.addRunDependency("guardado");
        estado.textContent = di("datos");
        modulo.guardado.recupera().then(() => modulo.removeRunDependency("guardado"));
    }

    // ---- The program ----

    async function arranca() {
        const programa = trae("numora.wasm");
        const datos = trae("numora.data").then((respuesta) => respuesta.arrayBuffer());
        const paquete = await datos;
        estado.textContent = di("abre");
        // The program measures its screen when it begins.
        pantalla.hidden = false;
        const modulo = await createQtAppInstance({
            qtContainerElements: [pantalla],
            arguments: [],
            preRun: [recupera],
            getPreloadedPackage: () => paquete,
            instantiateWasm(importaciones, listo) {
                programa.then((respuesta) => WebAssembly.instantiateStreaming(respuesta, importaciones))
                    .then((hecho) => listo(hecho.instance, hecho.module))
                    .catch((error) => falla("red", error));
                return {};
            },
            onAbort: (motivo) => falla("fallo", motivo),
        });
        document.getElementById("carga").hidden = true;
        const { guardado } = modulo;
        guardado.vigila();
        addEventListener("hashchange", () => modulo.llega(location.hash.slice(1)));
        const seVa = () => {
            modulo.guardaLoPendiente?.();
            guardado.apunta();
            guardado.copia();
        };
        addEventListener("pagehide", seVa);
        document.addEventListener("visibilitychange", () => {
            if (document.visibilityState === "hidden")
                seVa();
        });
        window.numora = modulo;
    }

    function cargaGuion(nombre) {
        return new Promise((listo, mal) => {
            const guion = document.createElement("script");
            guion.src = nombre;
            guion.onload = listo;
            guion.onerror = () => mal(new Error(nombre));
            document.head.append(guion);
        });
    }

    /// One tab at a time: two would overwrite what the other one keeps. The page before this one, of a reload, may still
    /// be about to go.
    function soloUna(hace) {
        if (!navigator.locks)
            return hace();
        const tarde = setTimeout(() => falla("otra"), esperaALaOtra);
        return navigator.locks.request("numora", () => {
            clearTimeout(tarde);
            avance.hidden = false;
            estado.setAttribute("role", "status");
            hace();
            // A browser may keep a page that one has left, and its lock with it: the next one must not wait for that.
            addEventListener("pageshow", ({ persisted }) => persisted && location.reload());
            return new Promise((suelta) => addEventListener("pagehide", suelta));
        });
    }

    /// A browser may keep a page that one has left, asleep, to come back to it: with the database that it was about to open,
    /// for which all later ones then wait. A message wakes no page; a browser that has to deliver one to such a page drops it.
    function despideALasDormidas() {
        if (!window.BroadcastChannel)
            return;
        const canal = new BroadcastChannel("numora");
        canal.onmessage = () => {};
        canal.postMessage("llega otra");
    }

    preparaPagina();
    despideALasDormidas();
    if ("serviceWorker" in navigator)
        navigator.serviceWorker.register("servicio.js").catch((error) => console.warn(error));
    soloUna(() => cargaGuion("numora.js").then(arranca).catch((error) => falla("red", error)));
})();
