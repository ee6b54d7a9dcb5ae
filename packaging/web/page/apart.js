// SPDX-License-Identifier: GPL-3.0-or-later
// A worker for one call of the library that may last; the page ends it when nobody waits any more.
"use strict";

importScripts("numora_apart.js");

onmessage = ({ data }) => createQtAppInstance()
    .then((modulo) => modulo.ccall("numoraCall", null, ["string", "string"], data))
    .catch((error) => postMessage(`failed\t${error}`));
