#pragma once

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
    void hazSitio(std::int32_t m, std::int32_t n);

    /// The value of a cell; 0, which the function never takes, when nothing is known: the cell is
    /// empty or its call was given up.
    std::int32_t lee(std::int32_t m, std::int32_t n) const;

    /// Whether anything was written into the cell, be it the 0 of a call that was given up.
    bool escrita(std::int32_t m, std::int32_t n) const { return casilla(m, n) != Vacia; }

    void escribe(std::int32_t m, std::int32_t n, std::int32_t valor);

private:
    static constexpr std::int32_t Vacia = -1;
    std::int32_t casilla(std::int32_t m, std::int32_t n) const;

    std::int32_t m_filas;
    std::int32_t m_columnas;
    std::vector<std::vector<std::int32_t>> m_valores;
};
