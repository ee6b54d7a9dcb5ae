// SPDX-License-Identifier: GPL-3.0-or-later
// Runs: what the worker answers, how it is ended, and that the page is served all the while.
"use strict";

module.exports = async (prueba) => {
    const { comprueba, comparable, direccion, hasta, igual } = prueba;
    const HuecoMayor = 50;
    const pide = (...algo) => prueba.navegador.pide(...algo);
    const apartes = () => prueba.navegador.evalua("Object.keys(window.numora.apartes ?? {}).length");

    const tecla = (type) => prueba.navegador.manda("Input.dispatchKeyEvent",
        { type, key: "Shift", code: "ShiftLeft", windowsVirtualKeyCode: 16 });

    /// The longest that a key waits for the page, in ms, while something goes on: Shift, which does nothing, is pressed and
    /// released every few milliseconds, whether the page has heard the last one or not.
    async function mientras(hace) {
        await prueba.navegador.evalua(`(() => {
            window.esperas = [];
            window.oyeEspera ??= (suceso) => esperas.push(performance.now() - suceso.timeStamp);
            for (const cual of ["keydown", "keyup"])
                addEventListener(cual, oyeEspera, true);
        })()`);
        const antes = Date.now();
        let acabado = false;
        const oidas = [];
        const teclas = (async () => {
            for (let abajo = false; !acabado || abajo; await prueba.espera(6))
                oidas.push(tecla((abajo = !abajo) ? "keyDown" : "keyUp"));
            await Promise.all(oidas);
        })();
        try {
            await hace();
        } finally {
            acabado = true;
            await teclas;
        }
        const [cuantas, mayor] = await prueba.navegador.evalua("[esperas.length, Math.max(...esperas)]");
        if (cuantas < (Date.now() - antes) / 40)
            throw new Error(`only ${cuantas} keys were heard`);
        return Math.round(mayor);
    }

    /// The same while a run goes on. Of up to four looks of a second the shortest counts: what the page itself does, it does
    /// in each of them; other programs of the machine do not.
    async function espera(dura) {
        let menor = Infinity;
        for (let miradas = 0; miradas < 4 && await dura(); ++miradas) {
            const mayor = await mientras(() => prueba.espera(1000));
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

    /// The same from the click that begins a run to half a second after it has shown its result; of up to four runs.
    async function muestra(lugar, boton) {
        const mayores = [];
        for (let vez = 0; vez < 4 && !mayores.some((uno) => uno <= HuecoMayor); ++vez) {
            igual(await pide("sigue", lugar), "");
            await prueba.espera(1500);
            mayores.push(await mientras(async () => {
                igual(await pide("pulsa", boton), true);
                await hasta(async () => !await pide("enMarcha"), "the end of the run");
                await prueba.espera(500);
            }));
        }
        prueba.dice(`${lugar}: a click waits ${mayores.join(", ")} ms at most, the result included`);
        return sirve(Math.min(...mayores));
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
    // Of the prime nothing is known before the end, and of the product of two long ones, neither.
    const producto = String((10n ** 44n + 31n) * (10n ** 45n + 9n));
    for (const [tema, campo, boton, rotulo, larga] of [
        ["primos/test", "txtNúmero", "cmdSigPrimo", "LabelPrimo", String(10n ** 3000n)],
        ["primos/test", "txtNúmero", "cmdEsPrimo", "LabelPrimo", String(2n ** 19937n - 1n)],
        ["unidades/grandes", "txtNGrande", "cmdFi", "lblFi", producto],
        ["unidades/grandes", "txtNGrande", "cmdFactores", "lblFi", producto]]) {
        await comprueba("worker", `${boton} is ended by the button that stops it`, async () => {
            igual(await pide("sigue", tema), "");
            igual(await pide("escribe", campo, larga), true);
            igual(await pide("pulsa", boton), true);
            await hasta(async () => await apartes() === 1, "the worker");
            igual(await pide("enMarcha"), true);
            const mayor = await espera(async () => await apartes() === 1);
            igual(await pide("pulsa", "cmdDetener"), true);
            igual(await pide("lee", rotulo), "Detenida.");
            await hasta(async () => await apartes() === 0, "the worker's end", 2000);
            igual(await pide("enMarcha"), false);
            igual(await pide("lee", campo), larga);
            return sirve(mayor);
        });
    }
    await comprueba("worker", "Euler's function from the factors", async () => {
        igual(await pide("sigue", `unidades/grandes?txtNGrande=${2n ** 67n - 1n}`), "");
        igual(await pide("pulsa", "cmdFactores"), true);
        await hasta(async () => comparable(await pide("lee", "txtFi")).endsWith(String(193707720n * 761838257286n)), "φ(2^67-1)");
    });
    await comprueba("worker", "tests the primes of a long key", async () => {
        igual(await pide("sigue", "rsa/clave"), "");
        for (const [campo, valor] of [["txtQ_1", 2n ** 3217n - 1n], ["txtQ_2", 2n ** 4253n - 1n], ["txtS", 65537n]])
            igual(await pide("entra", campo, String(valor)), true);
        await hasta(async () => await apartes() === 1, "the worker");
        const mayor = await espera(async () => await apartes() === 1);
        await hasta(async () => await pide("lee", "lblEstado") === "✓ Clave OK", "the verdict", 120000);
        return sirve(mayor);
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
    for (const [lugar, boton] of [
        ["funciones/funciones?TxtX=3&TxtY=9&txtMaxAck=5000", "cmdAck"],
        ["primos/criba?txtMaxPrimo=10^6&optTipoCriba_0=1", "BtnCriba"],
        ["primos/factorizacion?OptAlgoritmo_1=1&TxtN=600851475143", "BtnFactoriza"]])
        await comprueba("results", lugar, () => muestra(lugar, boton));
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
