#include "lessons/primes/CribaSegmentada.h"

#include "shell/core/Corrida.h"

#include <algorithm>

namespace {

/// The candidates 5, 7, 11, 13, … in their order, counted from 0, and back.
std::uint64_t candidato(std::uint64_t lugar)
{
    const std::uint64_t centro = 6 * (lugar / 2 + 1);
    return lugar % 2 == 0 ? centro - 1 : centro + 1;
}

std::uint64_t lugarDe(std::uint64_t candidato)
{
    return 2 * ((candidato + 1) / 6 - 1) + (candidato % 6 == 1 ? 1 : 0);
}

} // namespace

void CribaSegmentada::criba(std::int64_t limite, Corrida &corrida, const Avance &avance)
{
    m_numeros = {2, 3};
    m_tachadores.clear();
    m_seguros = m_numeros.size();
    m_informado = 0;
    m_porcentaje = 0;
    std::int64_t c = 0;
    for (m_k = 1; c <= limite && !corrida.detenida(); m_k += ValoresPorBloque) {
        generaBloque(limite, corrida);
        cribaBloque(limite, corrida, avance);
        c = static_cast<std::int64_t>(6 * (m_k + ValoresPorBloque - 1) + 1);
    }
}

void CribaSegmentada::generaBloque(std::int64_t limite, Corrida &corrida)
{
    m_candidatos = 0;
    for (std::size_t j = 0; j < ValoresPorBloque; ++j) {
        const auto centro = static_cast<std::int64_t>(6 * (m_k + j));
        m_vivo[2 * j] = centro - 1 <= limite;
        m_vivo[2 * j + 1] = centro + 1 <= limite;
        m_candidatos += (m_vivo[2 * j] ? 1U : 0U) + (m_vivo[2 * j + 1] ? 1U : 0U);
        corrida.ceder();
    }
}

/// Strikes the block by 5, 7, 11, … as long as a square lies within it. A composite falls by its
/// least prime factor, whose square it is not below; so primes with larger squares have nothing
/// left to strike. A prime of this very block is reached after all lesser ones have struck.
void CribaSegmentada::cribaBloque(std::int64_t limite, Corrida &corrida, const Avance &avance)
{
    std::size_t lugar = 0;
    for (std::size_t orden = 0;; ++orden) {
        const std::uint64_t p = primo(orden, lugar);
        const std::uint64_t fin = ultimo();
        informa(fin, static_cast<std::uint64_t>(limite), avance);
        if (p == 0 || p * p > fin)
            break;
        corrida.ceder();
        if (corrida.detenida()) {
            vuelcaBloque(p * p);
            return;
        }
        if (orden == m_tachadores.size())
            m_tachadores.push_back(tachadorDe(p));
        tacha(m_tachadores[orden]);
    }
    vuelcaBloque(6 * (m_k + ValoresPorBloque));
}

void CribaSegmentada::informa(std::uint64_t fin, std::uint64_t limite, const Avance &avance)
{
    constexpr std::uint64_t primerCandidato = 5;
    // The last number changes a few times a block, while this is asked for every prime: a quotient
    // each time would cost as much as the sieve.
    if (fin == m_informado || fin < primerCandidato)
        return;
    m_informado = fin;
    const auto porcentaje = static_cast<int>(100 * fin / limite);
    if (porcentaje != m_porcentaje && avance)
        avance(porcentaje);
    m_porcentaje = porcentaje;
}

/// The primes from 5 on by their order: those listed before this block, then what is alive in it
/// from `lugar` on, which moves behind the prime given. 0 when the block is at its end.
std::uint64_t CribaSegmentada::primo(std::size_t orden, std::size_t &lugar) const
{
    constexpr std::size_t dosYTres = 2;
    if (orden + dosYTres < m_numeros.size())
        return m_numeros[orden + dosYTres];
    while (lugar < m_candidatos && !m_vivo[lugar])
        ++lugar;
    return lugar < m_candidatos ? candidato(2 * (m_k - 1) + lugar++) : 0;
}

/// From the square on: p·p, and p times the next number of the other class.
CribaSegmentada::Tachador CribaSegmentada::tachadorDe(std::uint64_t primo)
{
    const std::uint64_t otro = primo % 6 == 5 ? primo + 2 : primo + 4;
    return {primo, {lugarDe(primo * primo), lugarDe(primo * otro)}};
}

void CribaSegmentada::tacha(Tachador &tachador)
{
    const std::uint64_t principio = 2 * (m_k - 1);
    for (std::uint64_t &lugar : tachador.lugares) {
        for (; lugar < principio + CandidatosPorBloque; lugar += 2 * tachador.primo)
            m_vivo[lugar - principio] = false;
    }
}

/// The largest number listed or alive.
std::uint64_t CribaSegmentada::ultimo() const
{
    for (std::size_t i = m_candidatos; i > 0; --i) {
        if (m_vivo[i - 1])
            return candidato(2 * (m_k - 1) + i - 1);
    }
    return m_numeros.back();
}

void CribaSegmentada::vuelcaBloque(std::uint64_t cotaDeSeguros)
{
    // Each candidate is written down and counted only if it is alive: which ones are cannot be
    // foreseen, and branches would cost more than the sieve.
    std::size_t n = m_numeros.size();
    m_numeros.resize(n + m_candidatos + 1);
    for (std::size_t i = 0; i < m_candidatos; ++i) {
        const std::uint64_t numero = candidato(2 * (m_k - 1) + i);
        m_numeros[n] = static_cast<std::uint32_t>(numero);
        n += m_vivo[i] ? 1 : 0;
        m_seguros += m_vivo[i] && numero < cotaDeSeguros ? 1 : 0;
    }
    m_numeros.resize(n);
}
