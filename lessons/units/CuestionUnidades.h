#pragma once

#include "lessons/units/GrupoUnidades.h"

#include <QString>

/// A question on the units of Z_n, its right answer, and what is wrong with the others.
class CuestionUnidades
{
public:
    enum class Tipo {
        Inverso,       ///< the inverse of a
        Orden,         ///< the order of a
        RaizPrimitiva, ///< any primitive root
        Fi,            ///< Euler's function of n
        Potencia       ///< the remainder of a^k by n
    };

    /// `a` is a unit of Z_n where the question is about one, `k` ≥ 0 the exponent of Potencia; a
    /// question for a primitive root asks for an n that has one.
    explicit CuestionUnidades(Tipo tipo, std::int32_t n, std::int32_t a = 0, std::int32_t k = 0);

    /// Draws one of these kinds and its numbers.
    static CuestionUnidades alAzar(const QList<Tipo> &tipos);

    Tipo tipo() const { return m_tipo; }
    QString enunciado() const;

    struct Juicio
    {
        bool acierto;
        QString motivo; ///< what is wrong, or what is worth adding to a right answer; may be empty
    };
    Juicio juzga(std::int32_t respuesta) const;

    /// The right answer; the least primitive root of those there are.
    std::int32_t solucion() const;

private:
    Juicio juzgaInverso(std::int32_t r) const;
    Juicio juzgaOrden(std::int32_t r) const;
    Juicio juzgaRaiz(std::int32_t r) const;
    Juicio juzgaFi(std::int32_t r) const;
    Juicio juzgaPotencia(std::int32_t r) const;

    Tipo m_tipo;
    GrupoUnidades m_grupo;
    std::int32_t m_a;
    std::int32_t m_k;
};
