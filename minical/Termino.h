// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>
#include <vector>

/// An expression taken apart as the number service reads it: what is joined by what.
struct Termino
{
    enum Clase {
        Valor,     ///< digits, with decimals perhaps
        Opuesto,   ///< − part
        Factorial, ///< part !
        Operacion, ///< part, sign, part: `texto` is one of "+", "-", "*", "/", "%"
        Potencia,  ///< part to the part
        Llamada    ///< the function `texto` of its parts
    };
    Clase clase = Valor;
    QString texto = {};
    std::vector<Termino> partes = {};
    int turno = -1;     ///< when it is computed (cuenta), counted from 0; −1 for what is a value
    QString valor = {}; ///< "p" or "p/q" in lowest terms, once it is counted
};

/// Reads an expression whose "mod" has been rewritten as "%" (ReescribeMod). Nothing for one that
/// the service would refuse to read, or that nests some hundred deep. (Source: V. Pratt, "Top Down
/// Operator Precedence", 1973.)
std::optional<Termino> leeTermino(const QString &expresion);
