// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <array>
#include <optional>

/// A move: the smallest disc, counted from 1, that a pole (0, 1, 2) gives to another.
struct MovimientoHanoi
{
    int disco = 0;
    int desde = 0;
    int hasta = 0;

    bool operator==(const MovimientoHanoi &) const = default;
};

/// Why a move is not allowed.
enum class ReparoHanoi {
    Ninguno,
    PaloVacio, ///< there is no disc to take
    DiscoMenor ///< the disc would lie on a smaller one
};

/// The Towers of Hanoi (Édouard Lucas, 1883) while they are being moved from the first pole to the
/// third, in whatever way, and the fewest moves from where they stand.
class TorresHanoi
{
public:
    static constexpr int MaximoDiscos = 12;
    static constexpr int NumPalos = 3;

    /// All discs on the first pole; 1 to MaximoDiscos of them.
    explicit TorresHanoi(int discos);

    int discos() const { return m_discos; }
    /// The moves that have been made.
    const QList<MovimientoHanoi> &movimientos() const { return m_movimientos; }
    int hechos() const { return static_cast<int>(m_movimientos.size()); }
    bool terminado() const { return m_palos[2].size() == m_discos; }

    /// The discs on a pole from the lowest to the highest.
    const QList<int> &palo(int indice) const;

    /// The fewest moves with all discs on the first pole: 2^discos - 1.
    int minimo() const { return (1 << m_discos) - 1; }
    /// The fewest from here (Andreas M. Hinz, "The Tower of Hanoi", 1989: the distance to a perfect
    /// state): 2^(d-1) for each disc d that does not lie where it has to lie.
    int faltan() const;
    /// Where disc d has to lie when the larger ones are moved first: on the third pole while they
    /// all lie where they have to, else out of their way.
    int destino(int disco) const;
    int paloDe(int disco) const;

    /// The next of the fewest moves; nothing when there is none.
    std::optional<MovimientoHanoi> siguiente() const;

    /// Why the highest disc of a pole cannot go to another one.
    ReparoHanoi reparo(int desde, int hasta) const;
    /// Moves it; nothing where that is not allowed, or where it stays on its pole.
    void mueve(int desde, int hasta);

    /// Makes the next of the fewest moves; nothing when there is none.
    void avanza();
    /// Takes the last move back; nothing when there is none.
    void retrocede();

private:
    void traslada(int desde, int hasta);

    int m_discos;
    QList<MovimientoHanoi> m_movimientos;
    std::array<QList<int>, NumPalos> m_palos;
};
