// SPDX-License-Identifier: GPL-3.0-or-later
// Fingers, and a page of the size of a telephone.
"use strict";

module.exports = async (prueba) => {
    const { comprueba, direccion, hasta, igual } = prueba;
    const pide = (...algo) => prueba.navegador.pide(...algo);
    const dedo = (type, ...puntos) => prueba.navegador.manda("Input.dispatchTouchEvent",
        { type, touchPoints: puntos.map(([x, y]) => ({ x, y })) });

    async function arrastra(x, desdeY, hastaY) {
        await dedo("touchStart", [x, desdeY]);
        for (let y = desdeY; y >= hastaY; y -= 15) {
            await dedo("touchMove", [x, y]);
            await prueba.espera(16);
        }
        await dedo("touchEnd");
        await prueba.espera(1000);
    }

    async function toca(x, y) {
        await dedo("touchStart", [x, y]);
        await dedo("touchEnd");
        await prueba.espera(400);
    }

    await prueba.abre(390, 844);
    await prueba.navegador.manda("Emulation.setTouchEmulationEnabled", { enabled: true, maxTouchPoints: 2 });
    await prueba.navegador.visita(direccion);
    prueba.navegador.adelanta();
    await comprueba("narrow", "390 × 844: the lesson has the page's width", async () => {
        await prueba.retrata("narrow-welcome");
        igual(await pide("sigue", "primos/factorizacion"), "");
        await prueba.retrata("narrow-lesson");
        const [x] = (await pide("lugarDe", "tsTema")).split(" ").map(Number);
        igual(x > 0 && x < 195, true);
        igual(await prueba.navegador.evalua("document.documentElement.scrollWidth <= 390"), true);
    });
    await comprueba("touch", "scrolls a page", async () => {
        igual(await pide("abreTema", "intro"), true);
        await prueba.espera(1500);
        await arrastra(200, 600, 300);
        const lejos = await pide("desplazado");
        return lejos > 150 ? "" : `scrolled by ${lejos} pixels only`;
    });
    await comprueba("touch", "a resting finger brings the menu, a tap beside it takes it away", async () => {
        await dedo("touchStart", [200, 400]);
        await hasta(() => pide("hayMenu"), "the menu", 5000);
        await dedo("touchEnd");
        await prueba.retrata("narrow-menu");
        await toca(30, 800);
        igual(await pide("hayMenu"), false);
    });
    await comprueba("touch", "a tap clicks", async () => {
        igual(await pide("sigue", "primos/test?txtNúmero=97"), "");
        await prueba.espera(500);
        await toca(...(await pide("lugarDe", "cmdEsPrimo")).split(" ").map(Number));
        await hasta(async () => /Es primo/.test(await pide("lee", "LabelPrimo")), "the verdict", 10000);
    });
};
