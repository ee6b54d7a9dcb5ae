#include "lessons/primes/CribaSegmentada.h"

#include "shell/Corrida.h"

#include <algorithm>

namespace {

/// The candidate at a place of the block that begins with 6k - 1.
std::uint64_t candidato(std::uint64_t k, std::size_t lugar)
{
    const std::uint64_t centro = 6 * (k + lugar / 2);
    return lugar % 2 == 0 ? centro - 1 : centro + 1;
}

/// The place of a number 6m ± 1 in the block that begins with 6k - 1.
std::size_t lugarDe(std::uint64_t numero, std::uint64_t k)
{
    return numero % 6 == 1 ? 2 * (numero / 6 - k) + 1 : 2 * ((numero + 1) / 6 - k);
}

} // namespace

void CribaSegmentada::criba(std::int64_t limite, Corrida &corrida, const Avance &avance)
{
    m_numeros = {2, 3};
    m_seguros = m_numeros.size();
    m_k = 1;
    m_porcentaje = 0;
    for (std::int64_t c = 0; c <= limite && !corrida.detenida();
         c = static_cast<std::int64_t>(candidato(m_k - 1, 1))) {
        generaBloque(limite, corrida);
        cribaBloque(limite, corrida, avance);
    }
}

void CribaSegmentada::generaBloque(std::int64_t limite, Corrida &corrida)
{
    m_candidatos = 0;
    for (std::size_t j = 0; j < ValoresPorBloque; ++j) {
        for (const std::size_t lugar : {2 * j, 2 * j + 1}) {
            m_vivo[lugar] = static_cast<std::int64_t>(candidato(m_k, lugar)) <= limite;
            m_candidatos += m_vivo[lugar] ? 1 : 0;
        }
        corrida.ceder();
    }
    m_k += ValoresPorBloque;
}

/// Strikes the block by 5, 7, 11, … as long as a square lies within it. A composite falls by its
/// least prime factor, whose square it is not below; so primes with larger squares have nothing
/// left to strike. A prime of this very block is reached after all lesser ones have struck.
void CribaSegmentada::cribaBloque(std::int64_t limite, Corrida &corrida, const Avance &avance)
{
    const std::uint64_t k = m_k - ValoresPorBloque;
    const std::size_t listados = m_numeros.size();
    std::size_t lugar = 0;
    for (std::size_t x = 2;; ++x) {
        std::uint64_t p = 0;
        if (x < listados) {
            p = m_numeros[x];
        } else {
            while (lugar < m_candidatos && !m_vivo[lugar])
                ++lugar;
            p = lugar < m_candidatos ? candidato(k, lugar++) : 0;
        }
        if (p == 0 || p * p > ultimo())
            break;
        const int porcentaje =
            static_cast<int>(100 * ultimo() / static_cast<std::uint64_t>(limite));
        if (avance && porcentaje > m_porcentaje)
            avance(m_porcentaje = porcentaje);
        corrida.ceder();
        if (corrida.detenida()) {
            vuelcaBloque(p * p);
            return;
        }
        tacha(p);
    }
    vuelcaBloque(candidato(m_k, 0));
}

/// Strikes the multiples of a prime among the candidates of the block: those by 6m - 1 and those by
/// 6m + 1, each class at equal distances.
void CribaSegmentada::tacha(std::uint64_t primo)
{
    const std::uint64_t k = m_k - ValoresPorBloque;
    const std::uint64_t primero = std::max(primo, (candidato(k, 0) + primo - 1) / primo);
    for (const std::uint64_t clase : {1U, 5U}) {
        const std::uint64_t m = primero + (clase + 6 - primero % 6) % 6;
        for (std::size_t i = lugarDe(primo * m, k); i < m_candidatos; i += 2 * primo)
            m_vivo[i] = false;
    }
}

std::uint64_t CribaSegmentada::ultimo() const
{
    for (std::size_t i = m_candidatos; i > 0; --i) {
        if (m_vivo[i - 1])
            return candidato(m_k - ValoresPorBloque, i - 1);
    }
    return m_numeros.back();
}

void CribaSegmentada::vuelcaBloque(std::uint64_t cotaDeSeguros)
{
    for (std::size_t i = 0; i < m_candidatos; ++i) {
        if (!m_vivo[i])
            continue;
        const std::uint64_t numero = candidato(m_k - ValoresPorBloque, i);
        m_numeros.push_back(static_cast<std::uint32_t>(numero));
        m_seguros += numero < cotaDeSeguros ? 1 : 0;
    }
}
