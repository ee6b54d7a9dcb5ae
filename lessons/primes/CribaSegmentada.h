// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

/// The sieve of Eratosthenes over the numbers 6k ± 1, in blocks of 1000 values of k: a block of
/// 2000 candidates is listed, then the multiples of each prime found so far are struck out of it,
/// so that earlier blocks are never looked at again. (Carter Bays and Richard Hudson, "The
/// segmented sieve of Eratosthenes and primes in arithmetic progressions to 10^12", 1977, for the
/// segments.)
class CribaSegmentada
{
public:
    static constexpr int ValoresPorBloque = 1000;

    /// Told which part of the limit the largest number of the list has reached, in percent,
    /// whenever that changes; 0 at first. It grows with each block and falls back a little where
    /// that number turns out to be composite, so that it ends with the largest prime.
    using Avance = std::function<void(int porcentaje)>;

    /// Lists the primes up to `limite`, at most 2^32 - 6001, and may be stopped wherever some
    /// values of k have been listed or some primes have struck. 2 and 3 are always listed, even
    /// beyond the limit. The list keeps what a stopped run had listed. The sieve outlives the task.
    Tarea<> criba(std::int64_t limite, Billete billete, Avance avance);

    /// The numbers listed, ascending. After a run that was stopped the last block may hold
    /// composites that were not struck yet.
    const std::vector<std::uint32_t> &numeros() const { return m_numeros; }

    /// The numbers at the beginning of the list that are certainly primes; all of them after a run
    /// that was not stopped.
    std::span<const std::uint32_t> primos() const { return std::span(m_numeros).first(m_seguros); }

    /// Hands them over without a copy, which would stand still for a third of a second where there
    /// are millions.
    std::vector<std::uint32_t> entregaPrimos();

private:
    static constexpr std::size_t CandidatosPorBloque = std::size_t{2} * ValoresPorBloque;
    static constexpr std::size_t DosYTres = 2; ///< listed, but they strike nothing

    /// A prime that strikes, and where it goes on: the places, counted over all blocks, of its next
    /// multiples by 6m - 1 and by 6m + 1.
    struct Tachador
    {
        std::uint64_t primo;
        std::array<std::uint64_t, 2> lugares;
    };

    void empieza(std::int64_t limite);
    void generaTramo(int desde);
    bool tachaTramo(const Avance &avance);
    void informa(std::uint64_t fin, const Avance &avance);
    /// Whether the prime that strikes next was found in the block in work.
    bool deEsteBloque() const { return m_orden + DosYTres >= m_numeros.size(); }
    std::uint64_t tachador();
    void pasaAlSiguiente();
    static Tachador tachadorDe(std::uint64_t primo);
    void tacha(Tachador &tachador);
    std::uint64_t ultimo() const;
    void vuelcaBloque(std::uint64_t cotaDeSeguros);

    std::vector<std::uint32_t> m_numeros;
    std::vector<Tachador> m_tachadores;
    std::size_t m_seguros = 0;
    std::int64_t m_limite = 0;

    // The block in work: its candidates are 6k - 1, 6k + 1 for k from m_k on.
    std::array<bool, CandidatosPorBloque> m_vivo{};
    std::size_t m_candidatos = 0; ///< those that do not exceed the limit
    std::uint64_t m_k = 1;
    std::size_t m_orden = 0;       ///< how many primes have struck the block
    std::size_t m_lugar = 0;       ///< behind the last candidate of the block that has
    std::uint64_t m_informado = 0; ///< the largest number when the percentage was computed
    int m_porcentaje = 0;
};
