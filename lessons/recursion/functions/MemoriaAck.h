// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

/// The values of Ackermann's function that are known, as a grid with a column an m and a row an n.
/// Only what has been written takes memory: a column is as long as its largest n, and the recursion
/// fills every column from 0 without gaps.
class MemoriaAck
{
public:
    /// The most rows and the most columns; a view could not draw many more.
    static constexpr std::int32_t MaximoDeLineas = 1'000'000;

    MemoriaAck(std::int32_t filas, std::int32_t columnas) : m_filas(filas), m_columnas(columnas) {}

    std::int32_t filas() const { return m_filas; }
    std::int32_t columnas() const { return m_columnas; }

    /// Widens and lengthens the grid until it has the cell. Throws Desbordamiento beyond
    /// MaximoDeLineas, with the call in the detail.
    void hazSitio(std::int32_t m, std::int32_t n)
    {
        if (m >= m_columnas || n >= m_filas)
            amplia(m, n);
    }

    /// The value of a cell; 0, which the function never takes, when nothing is known: the cell is
    /// empty or its call was given up.
    std::int32_t lee(std::int32_t m, std::int32_t n) const
    {
        return std::max(std::int32_t{0}, casilla(m, n));
    }

    /// Whether anything was written into the cell, be it the 0 of a call that was given up.
    bool escrita(std::int32_t m, std::int32_t n) const { return casilla(m, n) != Vacia; }

    void escribe(std::int32_t m, std::int32_t n, std::int32_t valor)
    {
        const auto columna = static_cast<std::size_t>(m);
        const auto fila = static_cast<std::size_t>(n);
        // Nearly every value stands right below those of its column.
        if (columna < m_valores.size() && fila == m_valores[columna].size()) {
            m_valores[columna].push_back(valor);
            return;
        }
        alarga(columna, fila);
        m_valores[columna][fila] = valor;
    }

private:
    static constexpr std::int32_t Vacia = -1;

    std::int32_t casilla(std::int32_t m, std::int32_t n) const
    {
        const auto columna = static_cast<std::size_t>(m);
        const auto fila = static_cast<std::size_t>(n);
        if (columna >= m_valores.size() || fila >= m_valores[columna].size())
            return Vacia;
        return m_valores[columna][fila];
    }
    void amplia(std::int32_t m, std::int32_t n);
    void alarga(std::size_t columna, std::size_t fila);

    std::int32_t m_filas;
    std::int32_t m_columnas;
    std::vector<std::vector<std::int32_t>> m_valores;
};
