// SPDX-License-Identifier: GPL-3.0-or-later
// The second visit needs no network.
"use strict";

module.exports = async (prueba) => {
    const { comprueba, direccion, hasta, igual } = prueba;
    await prueba.abre();
    await prueba.navegador.visita(direccion);
    await comprueba("offline", "opens and works when its server is gone", async () => {
        await hasta(() => prueba.navegador.evalua("navigator.serviceWorker.ready.then((servicio) => Boolean(servicio.active))"),
            "the service");
        await new Promise((listo) => {
            prueba.servidor.close(listo);
            prueba.servidor.closeAllConnections();
        });
        await prueba.navegador.visita(`${direccion}?i=English#primos/criba`);
        await hasta(async () => await prueba.navegador.pide("titulo") === "Primes", "the lesson");
        igual(await prueba.navegador.pide("sigue", "primos/factorizacion?OptAlgoritmo_2=1&TxtN=2^67-1"), "");
        igual(await prueba.navegador.pide("pulsa", "BtnFactoriza"), true);
        await hasta(async () => /761838257287/.test(await prueba.navegador.pide("lee", "txtProductoDeFactores")), "the factors");
    });
};
