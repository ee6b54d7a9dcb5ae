// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <compare>

/// A whole number of any size, for the algebra of steps: small ones are computed by the machine,
/// long ones by the number service. Every operation throws ErrorEjecucion::Desbordamiento where the
/// service cannot hold its result.
class EnteroLargo
{
public:
    EnteroLargo(qint64 valor = 0);
    /// Decimal digits, with or without a sign in front.
    explicit EnteroLargo(const QString &cifras);

    /// Its digits, with a sign where it is negative.
    QString texto() const { return m_largo.isEmpty() ? QString::number(m_valor) : m_largo; }
    /// The same as it is written behind a sign of a formula: a negative number between brackets.
    QString trasSigno() const;

    EnteroLargo operator-() const { return EnteroLargo() - *this; }
    friend EnteroLargo operator+(const EnteroLargo &a, const EnteroLargo &b);
    friend EnteroLargo operator-(const EnteroLargo &a, const EnteroLargo &b);
    friend EnteroLargo operator*(const EnteroLargo &a, const EnteroLargo &b);
    /// ⌊a/b⌋ and a − b·⌊a/b⌋ for b > 0.
    friend EnteroLargo operator/(const EnteroLargo &a, const EnteroLargo &b);
    friend EnteroLargo operator%(const EnteroLargo &a, const EnteroLargo &b);

    friend std::strong_ordering operator<=>(const EnteroLargo &a, const EnteroLargo &b);
    friend bool operator==(const EnteroLargo &a, const EnteroLargo &b) = default;

private:
    static EnteroLargo calculado(const EnteroLargo &a, QChar signo, const EnteroLargo &b);
    bool corto() const { return m_largo.isEmpty(); }

    qint64 m_valor = 0; ///< where it has up to 18 digits
    QString m_largo;    ///< its digits where it has more
};

EnteroLargo valorAbsoluto(const EnteroLargo &a);
