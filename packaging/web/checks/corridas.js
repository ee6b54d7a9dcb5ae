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

    /// Begins a run, has it last `ms` or to its end, and stops it; tells what the page's loop was held for meanwhile.
    async function corre(lugar, boton, ms) {
        igual(await pide("sigue", lugar), "");
        await prueba.espera(1500);
        igual(await pide("pulsa", boton), true);
        await prueba.espera(300);
        await hueco();
        await prueba.espera(ms);
        const marchaba = await pide("enMarcha"), mayor = await hueco();
        await pide("deten");
        await hasta(async () => !await pide("enMarcha"), "the end of the run");
        prueba.dice(`${lugar}: the page's loop was held for ${mayor} ms at most${marchaba ? "" : ", the run had ended"}`);
        return mayor <= HuecoMayor ? "" : `a click waits ${mayor} ms`;
    }

    await prueba.abre();
    await prueba.navegador.visita(direccion);
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
            await hueco();
            await prueba.espera(1500);
            const mayor = await hueco();
            await acaba();
            await hasta(async () => await apartes() === 0, "the worker's end", 2000);
            return mayor <= HuecoMayor ? "" : `a click waits ${mayor} ms`;
        });
    }
    for (const [lugar, boton, ms] of [
        ["primos/factorizacion?OptAlgoritmo_0=1&TxtN=922337203685461", "BtnFactoriza", 4000],
        ["primos/criba?txtMaxPrimo=10^9&optTipoCriba_1=1", "BtnCriba", 4000],
        ["fibonacci/valores?TxtN=45&optMetodo_0=1", "cmdCalcular", 4000],
        ["funciones/funciones?TxtX=3&TxtY=9&txtMaxAck=5000", "cmdAck", 3000],
        ["modular/representacion?txtAlfa=1&TxtBeta=1&TxtF1=1&txtF2=1&TxtMódulo=199", "cmdFunción", 4000],
        ["unidades/cayley?OptOperacion_0=1&txtNCayley=200", "cmdCayley", 3000]])
        await comprueba("responsive", lugar, () => corre(lugar, boton, ms));
};
