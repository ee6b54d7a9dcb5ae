// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// What an answer is made of.
struct FormaDeRespuesta
{
    enum Clase {
        Entero, ///< one whole number
        Lista,  ///< whole numbers between ",", ";", "y" or blanks, in brackets or not, in any order
        Suma,   ///< whole numbers joined by "+", each of which counts
        Producto,      ///< prime powers: "2^3·5", "2³ x 5", "2, 2, 2, 5"
        Solucion,      ///< "x = 3 + 5k, y = 2 − 4k": where it begins and how far it goes, of each
                       ///< unknown
        Palabra,       ///< one of the words alone
        Fraccion,      ///< a whole number, a fraction or a decimal as it is written, not computed
        FormulaDeCelda ///< an expression with names of cells
    };
    Clase clase = Entero;
    /// Words that are answers of their own: "sí", "no", "ninguna". Spanish; their translations are
    /// read as well.
    QStringList palabras = {};
    /// What the question asks for, by the name of a function ("mcd", "fi") or the signs of an
    /// operation ("^ mod"): an answer that computes with it repeats the question.
    QStringList preguntadas = {};
};

/// An answer as it has been read, before anybody judges it.
struct RespuestaLeida
{
    enum Estado { Vacia, Leida, NoEntendida, EsLaPregunta };
    Estado estado = Vacia;
    /// Whole numbers in digits with their sign, in the order in which they stand. Of a Producto
    /// prime, exponent, prime, exponent …, in order of the primes and joined; of a Solucion the
    /// beginning and the step of x, then of y. Of a Fraccion numerator and denominator as they were
    /// written, 1 where there is none. Of a FormulaDeCelda the expression.
    QStringList numeros = {};
    QString palabra = {}; ///< the word that was answered, in Spanish
    /// What the student is told: "leo 5167"; of one that is not understood, which part is not.
    QString leo = {};
};

/// Reads an answer without judging it: expressions, digits grouped as the program prints them,
/// signs of print, superscripts and subscripts (F₁₁), a factor before a bracket or a name. Never
/// throws.
RespuestaLeida leeRespuesta(const QString &texto, const FormaDeRespuesta &forma);

/// The same of an expression that the number service judges as it stands, without signs of print:
/// its value, which may be a fraction.
RespuestaLeida leeExpresion(const QString &texto);
