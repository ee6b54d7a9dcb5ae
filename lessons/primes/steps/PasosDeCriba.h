// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Lamina.h"
#include "shell/core/steps/Pasos.h"

#include <memory>
#include <vector>

/// The sieve of Eratosthenes on a board of 1 … n, a number struck a step: the multiples of each
/// prime from its square on.
class TableroDeCriba
{
public:
    /// The largest board that can be read.
    static constexpr int MayorTablero = 400;

    struct Tachadura
    {
        int primo = 0;
        int numero = 0;    ///< the multiple; 0 where the prime is found, before it strikes
        bool nueva = true; ///< whether no smaller prime had struck it
    };

    /// For 2 ≤ n ≤ MayorTablero.
    explicit TableroDeCriba(int n);

    int n() const { return m_n; }
    const std::vector<Tachadura> &tachaduras() const { return m_tachaduras; }
    /// The primes that strike, those whose square is on the board.
    const std::vector<int> &tachadores() const { return m_tachadores; }
    /// How many numbers a prime strikes, those struck before included.
    int golpes(int primo) const { return m_n / primo - primo + 1; }
    int compuestos() const;

    /// The board after step i; from tachaduras().size() on with the primes marked.
    Lamina lamina(std::size_t paso) const;

private:
    /// The index among the primes that strike of the first one that has struck each number up to
    /// that step; −1 for none.
    std::vector<int> tachados(std::size_t paso) const;

    int m_n;
    std::vector<Tachadura> m_tachaduras;
    std::vector<int> m_tachadores;
};

/// The steps of that board, which make a film; for a greater bound its beginning. None below 2.
Pasos pasosDeCriba(qint64 limite);
