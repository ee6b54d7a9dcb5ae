// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <array>

/// A move: the smallest disc, counted from 1, that a pole (0, 1, 2) gives to another.
struct MovimientoHanoi
{
    int disco = 0;
    int desde = 0;
    int hasta = 0;

    bool operator==(const MovimientoHanoi &) const = default;
};

/// The Towers of Hanoi (Édouard Lucas, 1883) while they are being moved from the first pole to the
/// third in the fewest moves.
class TorresHanoi
{
public:
    static constexpr int MaximoDiscos = 12;
    static constexpr int NumPalos = 3;

    /// All discs on the first pole; 1 to MaximoDiscos of them.
    explicit TorresHanoi(int discos);

    int discos() const { return m_discos; }
    /// All 2^discos - 1 moves, found by recursion.
    const QList<MovimientoHanoi> &movimientos() const { return m_movimientos; }

    /// How many of the moves have been made.
    int hechos() const { return m_hechos; }
    bool terminado() const { return m_hechos == m_movimientos.size(); }

    /// The discs on a pole from the lowest to the highest.
    const QList<int> &palo(int indice) const;

    /// Makes the next move; nothing when there is none.
    void avanza();
    /// Takes the last move back; nothing when there is none.
    void retrocede();

private:
    void traslada(int discos, int desde, int hasta);
    void mueve(int desde, int hasta);

    int m_discos;
    int m_hechos = 0;
    QList<MovimientoHanoi> m_movimientos;
    std::array<QList<int>, NumPalos> m_palos;
};
