// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Lectura.h"

#include <array>
#include <cstdint>

/// What determines f: f(n) = alfa f(n-1) + beta f(n-2) for n > 2, and its first two values.
struct DefinicionRecurrente
{
    Moneda alfa = Moneda::deDiezmilesimas(Moneda::Escala);
    Moneda beta = alfa;
    Moneda f1 = alfa;
    Moneda f2 = alfa;

    bool operator==(const DefinicionRecurrente &) const = default;
};

/// The value of an expression as a coefficient or a first value: a whole number within the range of
/// Moneda. Throws what Evalua throws.
Lectura<Moneda> leeCoeficiente(const QString &expresion);

/// The same as a modulus: a whole number from 1 to 2^31 - 1. Only a value beyond the range of
/// Moneda calls the notice of the bound.
Lectura<std::int32_t> leeModulo(const QString &expresion);

/// Where a sequence begins to repeat itself, and after how many terms it does.
struct PeriodoModular
{
    int inicio = 0;
    int longitud = 0;

    bool operator==(const PeriodoModular &) const = default;
};

/// The first 250 values of a recurrence modulo m, and their period.
class SucesionModular
{
public:
    static constexpr int NumValores = 250;

    /// All zeros with m = 0. Throws Desbordamiento when a product or the sum of a step does not
    /// fit 32 bits; moduli up to 32 000 are safe, since both factors are below m.
    SucesionModular(const DefinicionRecurrente &definicion, std::int32_t m);

    std::int32_t modulo() const { return m_modulo; }

    /// f(n), n from 1 to NumValores.
    std::int32_t valor(int n) const { return m_valores.at(static_cast<std::size_t>(n - 1)); }

    /// How much of f one step of n is worth in a plot that is as high as it is wide.
    double escala() const { return static_cast<double>(m_modulo - 1) / NumValores; }

    /// The first pair of consecutive values that comes back decides: two values determine all that
    /// follow. Nothing when none of the 249 pairs does.
    std::optional<PeriodoModular> periodo() const;

private:
    std::int32_t m_modulo;
    std::array<std::int32_t, NumValores> m_valores{};
};
