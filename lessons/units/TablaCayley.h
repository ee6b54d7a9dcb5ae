// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <cstdint>

/// A Cayley table of Z_n: elements by elements.
class TablaCayley
{
public:
    static constexpr std::int32_t MayorModulo = 60;

    enum class Operacion { ProductoDeUnidades, Producto, Suma };

    /// A table without elements.
    TablaCayley() = default;

    /// n in 1..MayorModulo; throws ArgumentoNoValido outside.
    TablaCayley(std::int32_t n, Operacion operacion);

    std::int32_t modulo() const { return m_n; }
    const QList<std::int32_t> &elementos() const { return m_elementos; }

    /// What the operation makes of two elements by their places, counted from 0.
    std::int32_t resultado(qsizetype fila, qsizetype columna) const;
    std::int32_t neutro() const;

    /// The same as a line: "3 · 5 ≡ 7 (mod 8)".
    QString explicacion(qsizetype fila, qsizetype columna) const;

    /// What there is to see in the table, in a line or two.
    QString descripcion() const;

private:
    std::int32_t m_n = 0;
    Operacion m_operacion = Operacion::ProductoDeUnidades;
    QList<std::int32_t> m_elementos;
};
