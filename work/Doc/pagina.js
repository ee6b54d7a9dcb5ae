// SPDX-License-Identifier: GPL-3.0-or-later
// In a browser, a link into the program ("numora:primos/test?txtNúmero=91") says what it would do
// there. The program itself leaves this file alone.
(function () {
    "use strict";

    // How lessons and topics are called in the interface, in Spanish and in English.
    var names = {
        "fibonacci": ["Fibonacci", "Fibonacci"],
        "fibonacci/valores": ["Valores", "Values"],
        "fibonacci/aureo": ["Número áureo", "Golden ratio"],
        "fibonacci/zeckendorf": ["Zeckendorf", "Zeckendorf"],
        "fibonacci/identidades": ["Identidades", "Identities"],
        "fibonacci/cuestiones": ["Cuestiones", "Questions"],
        "euclides": ["Algoritmo de Euclides", "Euclid's algorithm"],
        "euclides/euclides": ["Algoritmo de Euclides", "Euclid's algorithm"],
        "euclides/diofantica": ["Ecuación diofántica", "Diophantine equation"],
        "euclides/cuestiones": ["Cuestiones", "Questions"],
        "primos": ["Primos", "Primes"],
        "primos/criba": ["Criba de Eratóstenes", "Sieve of Eratosthenes"],
        "primos/test": ["Test de primos", "Primality test"],
        "primos/factorizacion": ["Factorización", "Factorization"],
        "primos/cuestiones": ["Cuestiones", "Questions"],
        "unidades": ["Unidades", "Units"],
        "unidades/unidades": ["Unidades", "Units"],
        "unidades/cayley": ["Tabla de Cayley", "Cayley table"],
        "unidades/grandes": ["Números grandes", "Big numbers"],
        "unidades/cuestiones": ["Cuestiones", "Questions"],
        "rsa": ["Criptografía RSA", "RSA cryptography"],
        "rsa/clave": ["Elección de clave", "Choice of a key"],
        "rsa/cod-decod": ["Codificación y descodificación", "Encryption and decryption"],
        "rsa/env-rec": ["Enviar y recibir", "Send and receive"],
        "congruencias": ["Teorema chino del resto", "Chinese remainder theorem"],
        "congruencias/sistemas": ["Sistemas de congruencias", "Systems of congruences"],
        "complejidad": ["Recursión y complejidad", "Recursion and complexity"],
        "complejidad/fibonacci": ["Fibonacci", "Fibonacci"],
        "complejidad/arbol": ["Árbol de llamadas", "Call tree"],
        "complejidad/hanoi": ["Torres de Hanói", "Towers of Hanoi"],
        "complejidad/cuestiones": ["Cuestiones", "Questions"],
        "modular": ["Recursión modular", "Modular recursion"],
        "modular/funcion": ["Función", "Function"],
        "modular/representacion": ["Representación", "Plot"],
        "modular/valores": ["Valores", "Values"],
        "modular/cuestiones": ["Cuestiones", "Questions"],
        "funciones": ["Funciones recursivas", "Recursive functions"],
        "funciones/funciones": ["Funciones", "Functions"],
        "minical": ["Hoja de cálculo", "Spreadsheet"],
        "minical/hoja": ["Hoja de cálculo", "Spreadsheet"]
    };

    var texts = {
        opens: ["En Numora, este enlace abre el tema «%1» de «%2»", "In Numora, this link opens the topic “%1” of “%2”"],
        writes: [" y escribe en él: %1.", " and writes there: %1."],
        only: [".", "."],
        practice: ["En Numora, este enlace abre la ventana de práctica con ejercicios de esta clase, nivel %1.",
                   "In Numora, this link opens the practice window with exercises of this kind, level %1."],
        question: ["En Numora, este enlace abre un campo para escribir la respuesta y la juzga. Aquí puedes desplegar la respuesta.",
                   "In Numora, this link opens a field for your answer and judges it. Here you can unfold the answer."],
        unknown: ["Este enlace solo se sigue en Numora.", "This link can only be followed in Numora."]
    };

    var language = document.documentElement.lang === "es" ? 0 : 1;

    function say(key, first, second) {
        return texts[key][language].replace("%1", function () { return first; })
            .replace("%2", function () { return second; });
    }

    function decoded(text) {
        try {
            return decodeURIComponent(text);
        } catch (error) {
            return text;
        }
    }

    // Field and value, but for what is a choice ("=1") or a place in a grid.
    function values(query) {
        return query.split("&").filter(Boolean).map(function (part) {
            var equals = part.indexOf("=");
            var field = decoded(part.slice(0, equals)), value = decoded(part.slice(equals + 1));
            if (/^[A-Z][0-9]+$/.test(field))
                return field + " = " + value;
            return /^(opt|Opt|chk|Chk|StatusBar)/.test(field) ? "" : value.replace(/^[0-9]+,[0-9]+:/, "");
        }).filter(Boolean).join("; ");
    }

    function explanation(href) {
        var parts = /^numora:([a-z]+)\/([^?]+)(?:\?(.*))?$/.exec(href);
        if (!parts)
            return say("unknown");
        if (parts[1] === "pregunta")
            return say("question");
        if (parts[1] === "practicas")
            return say("practice", (/nivel=([0-9]+)/.exec(parts[3] || "") || ["", "1"])[1]);
        var lesson = names[parts[1]], topic = names[parts[1] + "/" + parts[2]];
        if (!lesson || !topic)
            return say("unknown");
        var written = values(parts[3] || "");
        return say("opens", topic[language], lesson[language]) + (written ? say("writes", written) : say("only"));
    }

    function follow(event) {
        event.preventDefault();
        var link = event.currentTarget, block = link.closest("p, li, td") || link;
        var old = document.querySelector(".nota");
        var again = old && old.previousLink === link;
        if (old)
            old.remove();
        if (again)
            return;
        var note = document.createElement("div");
        note.className = "nota";
        note.setAttribute("role", "status");
        note.previousLink = link;
        if (block.tagName === "P")
            block.after(note);
        else
            block.append(note);
        // What is filled after it stands there is read out.
        note.textContent = link.title;
    }

    document.querySelectorAll('a[href^="numora:"]').forEach(function (link) {
        link.title = explanation(link.getAttribute("href"));
        link.addEventListener("click", follow);
    });
})();
