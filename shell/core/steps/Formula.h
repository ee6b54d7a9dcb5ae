// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// A piece of a formula: what it is, its own text, and the pieces it is made of.
struct NodoDeFormula
{
    enum Clase {
        Numero,     ///< decimal digits
        Nombre,     ///< of an unknown, a value, φ; its subscript, if any, is its one part
        Palabra,    ///< words between the symbols
        Puntos,     ///< … or what is left out
        Opuesto,    ///< − part
        Operacion,  ///< part, sign, part: `texto` is "+", "-", "*" or "mod"
        Fraccion,   ///< part over part
        Potencia,   ///< part to the part
        Funcion,    ///< `texto` of its parts
        Parentesis, ///< its members, ";" between them
        Relacion,   ///< parts with `signos` between them, and the modulus behind if `conModulo`
        Lista       ///< relations with `signos` ("," or "=>") between them
    };
    Clase clase = Numero;
    QString texto = {};
    std::vector<NodoDeFormula> partes = {};
    QStringList signos = {};
    bool conModulo = false;
};

/// Whether part i of a piece needs brackets where it is written in a line: the sign beside it would
/// take it apart.
bool llevaParentesis(const NodoDeFormula &nodo, std::size_t i);

/// A formula of a step: written in a line, shown as mathematics.
///
///     240 = 5*46 + 10             2^{n+1}/(a*b) ~ 3        7^2 == 1 (mod 16)
///     mcd(240; 46) = 2            x_1 = -9, y_1 = 47       15 | 240 => 3 !| 7
///
/// Relations are = != < > <= >= ~ (about) == (congruent, with "(mod m)" behind) | (divides) and !|.
/// `*` is the point between factors, `/` a fraction of what stands before it in the product, `mod`
/// the remainder. Braces group without being seen: `23*{240/2}`. Functions have their name directly
/// before the bracket; sqrt, floor, ceil, abs and factorial are drawn as such. Greek names may be
/// written as they are (φ, λ). "Words" stand between quotes, and ... for what is left out.
class Formula
{
public:
    Formula() = default;
    /// Throws std::invalid_argument for what is no formula, naming the place.
    Formula(const QString &escrita);

    bool vacia() const { return m_escrita.isEmpty(); }
    const QString &escrita() const { return m_escrita; }
    /// The whole: a Lista, a Relacion, or a single term.
    const NodoDeFormula &raiz() const { return m_raiz; }

private:
    QString m_escrita;
    NodoDeFormula m_raiz;
};
