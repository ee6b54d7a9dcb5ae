// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the program in the browser, so that it opens without a network after the first visit.
"use strict";

// Both put here by the build.
const edicion = "numora-0";
const archivos = ["./"];

self.addEventListener("install", (suceso) => {
    suceso.waitUntil(caches.open(edicion).then((caja) => caja.addAll(archivos)));
});

self.addEventListener("activate", (suceso) => {
    suceso.waitUntil(caches.keys().then((cajas) => Promise.all(
        cajas.filter((caja) => caja.startsWith("numora-") && caja !== edicion).map((caja) => caches.delete(caja)))));
});

// What is kept first: all files of one edition belong together.
self.addEventListener("fetch", (suceso) => {
    if (suceso.request.method !== "GET")
        return;
    suceso.respondWith(caches.open(edicion)
        .then((caja) => caja.match(suceso.request, { ignoreSearch: true }))
        .then((guardado) => guardado || fetch(suceso.request)));
});
