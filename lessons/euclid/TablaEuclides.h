// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"

#include <QList>
#include <QString>
#include <cstdint>
#include <optional>

/// One division of Euclid's algorithm. The coefficients combine the two numbers into the remainder.
struct DivisionEuclides
{
    Moneda dividendo;
    Moneda divisor;
    Moneda cociente;
    Moneda resto;
    /// Not fixed-point numbers: without correction of signs those of the reduced remainders outgrow
    /// them (from F(60) and F(58) on, F being Fibonacci's numbers), though never 64 bits.
    std::int64_t coef1;
    std::int64_t coef2;
};

enum class AlgoritmoEuclides {
    Estandar,        ///< remainders in [0, divisor)
    RestosReducidos, ///< remainders of least absolute value; the positive one of a tie
};

/// The largest number that each algorithm takes without any overflow.
Moneda mayorNumero(AlgoritmoEuclides algoritmo);

/// Euclid's extended algorithm on two whole numbers, division by division. With reduced remainders
/// the coefficients are not corrected where a remainder is negative, so that only in the standard
/// algorithm each row is an identity. (Source: D. E. Knuth, The Art of Computer Programming, vol.
/// 2, 1997, sections 4.5.2 and 4.5.3.)
class TablaEuclides
{
public:
    TablaEuclides() = default;
    TablaEuclides(Moneda dividendo, Moneda divisor, AlgoritmoEuclides algoritmo);

    Moneda dividendo() const { return m_dividendo; }
    Moneda divisor() const { return m_divisor; }

    AlgoritmoEuclides algoritmo() const { return m_algoritmo; }

    /// Empty unless the divisor is positive.
    const QList<DivisionEuclides> &divisiones() const { return m_divisiones; }

    /// What the last division leaves as the greatest common divisor.
    Moneda mcd() const { return m_mcd; }

    /// The division whose remainder is that, counted from 0: the last but one. None where it is a
    /// number that was given.
    std::optional<qsizetype> filaDelMcd() const;

    /// Bezout's identity or, with reduced remainders, the greatest common divisor alone. Where
    /// there was nothing to divide and no divisor either (a divisor below 0, two zeros), what to
    /// do.
    QString resultado() const;

private:
    QString bezout() const;

    Moneda m_dividendo;
    Moneda m_divisor;
    AlgoritmoEuclides m_algoritmo = AlgoritmoEuclides::Estandar;
    QList<DivisionEuclides> m_divisiones;
    Moneda m_mcd;
};
