// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>
#include <compare>
#include <cstdint>
#include <optional>

/// A fixed-point number: 64 bits, four decimal places, -922337203685477,5808 to
/// 922337203685477,5807. The lessons' type for whole numbers of machine size. Every operation is
/// checked: a result out of range throws ErrorEjecucion::Desbordamiento.
class Moneda
{
public:
    static constexpr std::int64_t Escala = 10'000;
    /// The largest whole value.
    static constexpr std::int64_t MaximoEntero = 922'337'203'685'477;

    constexpr Moneda() = default;

    static constexpr Moneda deDiezmilesimas(std::int64_t d) { return Moneda(d); }

    /// Throws Desbordamiento beyond ±MaximoEntero.
    static Moneda deEntero(std::int64_t valor);

    /// The nearest value with four decimals, halves to even. Throws Desbordamiento out of range or
    /// for a value that is no number.
    static Moneda deReal(double valor);

    /// Reads an optional sign, digits and a decimal part after "," or "."; digits beyond the fourth
    /// are rounded half to even. Nothing for any other text; throws Desbordamiento out of range.
    static std::optional<Moneda> deTexto(QStringView texto);

    constexpr std::int64_t diezmilesimas() const { return m_valor; }
    /// The value as a double, exact for whole numbers: the ten-thousandths of one beyond 9·10^11
    /// need more than the 53 bits of a double, so whole part and decimals are converted apart.
    constexpr double real() const
    {
        return static_cast<double>(entero()) + static_cast<double>(m_valor % Escala) / Escala;
    }
    constexpr bool esEntero() const { return m_valor % Escala == 0; }

    /// The whole part, toward zero.
    constexpr std::int64_t entero() const { return m_valor / Escala; }

    /// Rounded half to even to 32 bits. Throws Desbordamiento.
    std::int32_t aEntero32() const;

    /// Rounded half to even to 16 bits. Throws Desbordamiento.
    std::int16_t aEntero16() const;

    /// Decimal text without separators of thousands, with a decimal comma where there are decimals.
    QString texto() const;

    Moneda operator-() const;
    friend Moneda operator+(Moneda a, Moneda b);
    friend Moneda operator-(Moneda a, Moneda b);
    /// The exact product rounded half to even to four decimals.
    friend Moneda operator*(Moneda a, Moneda b);

    friend constexpr auto operator<=>(Moneda a, Moneda b) = default;

private:
    constexpr explicit Moneda(std::int64_t diezmilesimas) : m_valor(diezmilesimas) {}

    std::int64_t m_valor = 0;
};

/// a / b in double precision, brought back to fixed point. Throws DivisionPorCero, Desbordamiento.
Moneda cociente(Moneda a, Moneda b);

/// ⌊a / b⌋ in double precision. Throws DivisionPorCero.
double cocienteEntero(Moneda a, Moneda b);

/// The remainder of a by b: r = a - ⌊a ÷ b⌋·b in double precision, plus b when r is negative.
/// Exact, and in [0, b) for positive b, while both are whole numbers within Moneda::MaximoEntero,
/// because those and their quotients stay below 2^53; with decimals it may miss both by the last
/// of them. Throws DivisionPorCero.
Moneda ModCy(Moneda a, Moneda b);
