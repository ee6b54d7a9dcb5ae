// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>

/// The exercise of the lesson: two primes as close to each other as possible whose product has a
/// given number of binary digits.
class CuestionDosPrimos
{
public:
    /// Draws the number of binary digits, 100 to 200.
    CuestionDosPrimos();

    std::int16_t digitosPedidos() const { return m_digitos; }

    /// What stands in the way of a right answer.
    enum class Juicio { Acertada, Lejanos, OtraLongitud };

    /// Judges two primes, decimal texts, by the binary digits of their product: close are those
    /// whose decimal lengths differ by one at most.
    Juicio juzga(const QString &primo1, const QString &primo2, const QString &binario) const;

private:
    std::int16_t m_digitos;
};
