// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

// The language of expressions as the library tells about it: its functions, and why an expression
// has no value.

struct FuncionDeExpresiones
{
    QString nombre;        ///< in Spanish
    QString internacional; ///< another name, or the same
    QString descripcion;   ///< in Spanish
    bool admiteVarios;     ///< more than one argument
};

/// All functions, in the library's order.
const QList<FuncionDeExpresiones> &funcionesDeExpresiones();

/// The first fault on the way through an expression.
struct FalloDeExpresion
{
    enum class Clase {
        Ninguno,         ///< the expression has a value
        FaltaNumero,     ///< something else stands there, or the text ends
        FaltaOperacion,  ///< before what stands there
        FueraDeLugar,    ///< a bracket or ";"
        Desconocido,     ///< no number, operation or function
        Argumentos,      ///< a function without brackets or with too many arguments
        DivisionPorCero, //
        NoEsEntero,      ///< a fraction where only whole numbers are taken
        FueraDeDominio,  ///< a factorial or a function that is not defined there
        DemasiadoGrande, ///< a value, a text or a nesting
        DemasiadoTrabajo ///< it takes too long
    };

    Clase clase = Clase::Ninguno;
    /// The part of the expression at fault, "%" for "mod"; empty at its end and where no part is.
    QString donde;
};

/// Why `Evalua` gives "Error" for an expression over the rationals. Takes about a tenth of a
/// second at most. Throws what ReescribeMod throws.
FalloDeExpresion falloDeExpresion(QString expresion);
