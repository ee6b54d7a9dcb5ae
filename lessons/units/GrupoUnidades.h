// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <cstdint>

/// A unit of Z_n with what is asked of it.
struct Unidad
{
    std::int32_t valor;
    std::int32_t inverso;
    std::int32_t orden; ///< the least k > 0 with valor^k ≡ 1
};

/// The powers of an element of Z_n until they repeat.
struct PotenciasDeElemento
{
    QList<std::int32_t> valores; ///< a^0, a^1, … without repetition
    int vuelta = 0;              ///< where the next power falls: 0 for a unit
};

/// The ring Z_n for small n and the group of its units.
class GrupoUnidades
{
public:
    static constexpr std::int32_t MayorModulo = 10'000;

    /// n in 1..MayorModulo; throws ArgumentoNoValido outside. In Z_1 the only element, 0, is the
    /// one of the ring and so a unit.
    explicit GrupoUnidades(std::int32_t n);

    std::int32_t modulo() const { return m_n; }
    const QList<Unidad> &unidades() const { return m_unidades; } ///< ascending
    std::int32_t fi() const { return static_cast<std::int32_t>(m_unidades.size()); }

    /// The largest order of a unit, which all orders divide (Carmichael's function).
    std::int32_t exponente() const { return m_exponente; }

    /// Whether some unit generates all others, that is, whether there are primitive roots.
    bool esCiclico() const { return m_exponente == fi(); }
    bool esRaizPrimitiva(const Unidad &unidad) const { return unidad.orden == fi(); }
    int numeroDeRaicesPrimitivas() const;

    /// The unit congruent to `a`; null when it is none.
    const Unidad *unidad(std::int32_t a) const;

    /// The element of 0..n-1 that is congruent to `a`.
    std::int32_t representante(std::int64_t a) const;

    PotenciasDeElemento potencias(std::int32_t a) const;

private:
    std::int32_t m_n;
    std::int32_t m_exponente = 1;
    QList<Unidad> m_unidades;
};

/// base^exponente modulo m, for exponente ≥ 0 and 1 ≤ m < 2^31.
std::int32_t potenciaMod(std::int64_t base, std::int64_t exponente, std::int32_t m);
