// SPDX-License-Identifier: GPL-3.0-or-later
// Serves a folder at the loopback address, and can be taken away.
"use strict";

const fs = require("node:fs");
const http = require("node:http");
const path = require("node:path");

const clases = { ".html": "text/html", ".js": "text/javascript", ".css": "text/css", ".wasm": "application/wasm",
    ".png": "image/png", ".svg": "image/svg+xml" };

/// The server and its address.
function sirve(carpeta) {
    const servidor = http.createServer((pedido, respuesta) => {
        const nombre = decodeURIComponent(new URL(pedido.url, "http://x").pathname);
        const archivo = path.join(carpeta, path.normalize(nombre.endsWith("/") ? `${nombre}index.html` : nombre));
        if (!fs.existsSync(archivo))
            return respuesta.writeHead(404).end();
        respuesta.writeHead(200, { "Content-Type": clases[path.extname(archivo)] ?? "application/octet-stream" });
        return fs.createReadStream(archivo).pipe(respuesta);
    });
    return new Promise((listo) => servidor.listen(0, "127.0.0.1", () =>
        listo({ servidor, direccion: `http://127.0.0.1:${servidor.address().port}/` })));
}

module.exports = { sirve };
