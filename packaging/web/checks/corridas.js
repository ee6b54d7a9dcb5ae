// SPDX-License-Identifier: GPL-3.0-or-later
// Runs: what the worker answers, how it is ended, and that the page is served all the while.
"use strict";

module.exports = async (prueba) => {
    const { comprueba, comparable, direccion, hasta, igual } = prueba;
    const HuecoMayor = 50;
    const pide = (...algo) => prueba.navegador.pide(...algo);
    const apartes = () => prueba.navegador.evalua("Object.keys(window.numora.apartes ?? {}).length");

    /// The longest that the page's event loop was held, in ms, from this call to the next.
    const hueco = () => prueba.navegador.evalua(`(() => {
        const antes = window.hueco;
        const ahora = window.hueco = { mayor: 0, hora: performance.now() };
        const mira = () => {
            const hora = performance.now();
            ahora.mayor = Math.max(ahora.mayor, hora - ahora.hora);
            ahora.hora = hora;
            if (window.hueco === ahora)
                setTimeout(mira, 0);
        };
        setTimeout(mira, 0);
        return Math.round(antes?.mayor ?? 0);
    })()`);

    /// The longest that a click waits while something goes on. Of up to four looks of a second the shortest counts: what
    /// the page itself does, it does in each of them; other programs of the machine do not.
    async function espera(dura) {
        let menor = Infinity, miradas = 0;
        for (; miradas < 4 && await dura(); ++miradas) {
            await hueco();
            await prueba.espera(1000);
            const mayor = await hueco();
            // What shows a result is no part of the run any more.
            if (await dura())
                menor = Math.min(menor, mayor);
        }
        return menor;
    }

    const sirve = (mayor) => mayor <= HuecoMayor ? "" : `a click waits ${mayor} ms`;

    async function corre(lugar, boton) {
        igual(await pide("sigue", lugar), "");
        await prueba.espera(1500);
        igual(await pide("pulsa", boton), true);
        await prueba.espera(300);
        const mayor = await espera(() => pide("enMarcha"));
        await pide("deten");
        await hasta(async () => !await pide("enMarcha"), "the end of the run");
        prueba.dice(`${lugar}: a click waits ${mayor} ms at most`);
        return sirve(mayor);
    }

    await prueba.abre();
    await prueba.navegador.visita(direccion);
    prueba.navegador.adelanta();
    // Two primes of 28 and 29 digits.
    const p = "1000000000000000000000000103", q = "10000000000000000000000000331";
    const largo = `${10n ** 44n + 31n}*${10n ** 45n + 9n}`;
    await comprueba("worker", "factors", async () => {
        igual(await pide("sigue", `primos/factorizacion?OptAlgoritmo_2=1&TxtN=${p}*${q}`), "");
        igual(await pide("pulsa", "BtnFactoriza"), true);
        await hasta(async () => await apartes() === 1, "the worker");
        await hasta(async () => comparable(await pide("lee", "txtProductoDeFactores")) === `${p}·${q}`, "the factors", 120000);
        await hasta(async () => await apartes() === 0, "the worker's end");
    });
    await comprueba("worker", "the next prime", async () => {
        igual(await pide("sigue", `primos/test?txtNúmero=${10n ** 300n}`), "");
        igual(await pide("pulsa", "cmdSigPrimo"), true);
        await hasta(async () => comparable(await pide("lee", "txtNúmero")) === String(10n ** 300n + 331n), "10^300+331");
    });
    for (const [como, acaba] of [["its button", () => pide("deten")], ["the end of its window", () => pide("cierraLeccion")]]) {
        await comprueba("worker", `is ended by ${como}`, async () => {
            igual(await pide("sigue", `primos/factorizacion?OptAlgoritmo_2=1&TxtN=${largo}`), "");
            igual(await pide("pulsa", "BtnFactoriza"), true);
            await hasta(async () => await apartes() === 1, "the worker");
            const mayor = await espera(async () => await apartes() === 1);
            await acaba();
            await hasta(async () => await apartes() === 0, "the worker's end", 2000);
            return sirve(mayor);
        });
    }
    for (const [lugar, boton] of [
        ["primos/factorizacion?OptAlgoritmo_0=1&TxtN=922337203685461", "BtnFactoriza"],
        ["fibonacci/valores?TxtN=45&optMetodo_0=1", "cmdCalcular"],
        ["complejidad/fibonacci?TxtHasta=40", "cmdMedir"]])
        await comprueba("responsive", lugar, () => corre(lugar, boton));
    await comprueba("responsive", "naive division", async () => {
        igual(await pide("sigue", "primos/factorizacion?OptAlgoritmo_0=1&TxtN=100000007"), "");
        const antes = await prueba.navegador.evalua("performance.now()");
        igual(await pide("pulsa", "BtnFactoriza"), true);
        const segundos = (await prueba.navegador.evalua(`new Promise((listo) => {
            const mira = () => !numora.enMarcha() && /primo/.test(numora.lee("lblResultado")) ? listo(performance.now()) : setTimeout(mira, 5);
            mira();
        })`) - antes) / 1000;
        prueba.dice(`trial division of 100000007 by all odd numbers: ${segundos.toFixed(2)} s`);
    });
};
