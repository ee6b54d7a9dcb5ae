// SPDX-License-Identifier: GPL-3.0-or-later
// A browser's processes and the folder in which it keeps everything: both go with this script, however it ends (but by
// a signal that nobody can catch).
"use strict";

const { spawn } = require("node:child_process");
const fs = require("node:fs");
const os = require("node:os");

const vivos = new Set();

/// The ids of all processes, with their parents.
function padres() {
    const todos = new Map();
    for (const pid of fs.readdirSync("/proc").filter((uno) => /^[0-9]+$/.test(uno))) {
        try {
            todos.set(Number(pid), Number(/\) . ([0-9]+)/.exec(fs.readFileSync(`/proc/${pid}/stat`, "utf8"))[1]));
        } catch { /* it has ended */ }
    }
    return todos;
}

function nombra(pid, carpeta) {
    try {
        return fs.readFileSync(`/proc/${pid}/cmdline`, "utf8").includes(carpeta);
    } catch {
        return false;
    }
}

class Proceso {
    /// `carpeta` is the browser's own, which nobody else names.
    constructor(orden, argumentos, carpeta, env = process.env) {
        this.carpeta = carpeta;
        this.hijo = spawn(orden, argumentos, { stdio: "ignore", env });
        this.acabado = new Promise((listo) => this.hijo.once("exit", listo).once("error", listo));
        vivos.add(this);
    }

    /// Its own id, those of all that came of it, and of those that have left their parents and name its folder.
    familia() {
        const todos = padres();
        const esMio = (pid) => pid === this.hijo.pid || (todos.has(pid) && esMio(todos.get(pid)));
        return [...todos.keys()].filter((pid) => pid !== process.pid && (esMio(pid) || nombra(pid, this.carpeta)));
    }

    manda(senal) {
        for (const pid of this.familia()) {
            try {
                process.kill(pid, senal);
            } catch { /* it has ended */ }
        }
    }

    /// Without a word of warning to its page; the folder stays.
    async mata() {
        this.manda("SIGKILL");
        await this.acabado;
        // What it had begun ends a moment later.
        for (const limite = Date.now() + 5000; this.familia().length > 0 && Date.now() < limite;)
            await new Promise((listo) => setTimeout(listo, 50));
        vivos.delete(this);
    }

    async cierra() {
        this.hijo.kill();
        await Promise.race([this.acabado, new Promise((listo) => setTimeout(listo, 3000))]);
        await this.mata();
        this.borra();
    }

    borra() {
        fs.rmSync(this.carpeta, { recursive: true, force: true, maxRetries: 5 });
    }

    /// Lets it, and this script that asks it, go before whatever else the machine does, where that is allowed: for what is
    /// measured in time.
    adelanta() {
        for (const pid of [process.pid, ...this.familia()]) {
            try {
                for (const hilo of fs.readdirSync(`/proc/${pid}/task`))
                    os.setPriority(Number(hilo), -15);
            } catch { /* it has ended, or it is not allowed */ }
        }
    }
}

process.on("exit", () => {
    for (const uno of vivos) {
        uno.manda("SIGKILL");
        uno.borra();
    }
});
for (const [senal, numero] of [["SIGINT", 2], ["SIGTERM", 15], ["SIGHUP", 1]])
    process.on(senal, () => process.exit(128 + numero));

module.exports = { Proceso };
