#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

class Corrida;

/// The sieve of Eratosthenes over the numbers 6k ± 1, in blocks of 1000 values of k: a block of
/// 2000 candidates is listed, then the multiples of each prime found so far are struck out of it,
/// so that earlier blocks are never looked at again. (Carter Bays and Richard Hudson, "The
/// segmented sieve of Eratosthenes and primes in arithmetic progressions to 10^12", 1977, for the
/// segments.)
class CribaSegmentada
{
public:
    static constexpr int ValoresPorBloque = 1000;

    /// Told how much of the range has been listed, in percent, whenever that grows.
    using Avance = std::function<void(int porcentaje)>;

    /// Lists the primes up to `limite`, at most 2^32 - 6001, yielding once for each k and once for
    /// each prime that strikes. 2 and 3 are always listed, even beyond the limit. The list keeps
    /// what a stopped run had listed.
    void criba(std::int64_t limite, Corrida &corrida, const Avance &avance);

    /// The numbers listed, ascending. After a run that was stopped the last block may hold
    /// composites that were not struck yet.
    const std::vector<std::uint32_t> &numeros() const { return m_numeros; }

    /// The numbers at the beginning of the list that are certainly primes; all of them after a run
    /// that was not stopped.
    std::span<const std::uint32_t> primos() const { return std::span(m_numeros).first(m_seguros); }

private:
    static constexpr std::size_t CandidatosPorBloque = 2 * ValoresPorBloque;

    void generaBloque(std::int64_t limite, Corrida &corrida);
    void cribaBloque(std::int64_t limite, Corrida &corrida, const Avance &avance);
    void tacha(std::uint64_t primo);
    std::uint64_t ultimo() const;
    void vuelcaBloque(std::uint64_t cotaDeSeguros);

    std::vector<std::uint32_t> m_numeros;
    std::size_t m_seguros = 0;

    // The block in work: candidate i is 6k ± 1 of the k-th value, the lesser first.
    std::array<bool, CandidatosPorBloque> m_vivo{};
    std::size_t m_candidatos = 0; ///< those of the block that do not exceed the limit
    std::uint64_t m_k = 1;        ///< the first k of the next block
    int m_porcentaje = 0;
};
