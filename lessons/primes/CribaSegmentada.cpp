// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/CribaSegmentada.h"

#include <algorithm>
#include <cmath>
#include <utility>

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

/// Room for the primes up to a limit and for a block behind them. (J. Barkley Rosser and Lowell
/// Schoenfeld, "Approximate formulas for some functions of prime numbers", 1962: fewer than
/// 1.25506 x / ln x.)
std::size_t cuantosComoMucho(std::int64_t limite)
{
    const auto x = static_cast<double>(std::max<std::int64_t>(limite, 2));
    return static_cast<std::size_t>(1.25506 * x / std::log(x)) +
           std::size_t{2} * CribaSegmentada::ValoresPorBloque + 3;
}

/// How many values of k, or primes that strike, go between two yields: one that awaits costs as
/// much as the striking itself.
constexpr int Tramo = 64;

} // namespace

Tarea<> CribaSegmentada::criba(std::int64_t limite, Billete billete, Avance avance)
{
    empieza(limite);
    std::int64_t c = 0;
    for (m_k = 1; c <= limite && !billete.detenida(); m_k += ValoresPorBloque) {
        for (int desde = 0; desde < ValoresPorBloque; desde += Tramo) {
            generaTramo(desde);
            co_await billete.ceder();
        }
        m_orden = m_lugar = 0;
        while (tachaTramo(avance)) {
            co_await billete.ceder();
            if (billete.detenida()) {
                const std::uint64_t p = tachador();
                vuelcaBloque(p * p);
                co_return;
            }
        }
        vuelcaBloque(6 * (m_k + ValoresPorBloque));
        c = static_cast<std::int64_t>(6 * (m_k + ValoresPorBloque - 1) + 1);
    }
}

void CribaSegmentada::empieza(std::int64_t limite)
{
    m_limite = limite;
    m_numeros.clear();
    // Growing would copy millions at one go, with a click waiting meanwhile.
    m_numeros.reserve(cuantosComoMucho(limite));
    m_numeros = {2, 3};
    m_tachadores.clear();
    m_seguros = m_numeros.size();
    m_candidatos = 0;
    m_informado = 0;
    m_porcentaje = 0;
}

std::vector<std::uint32_t> CribaSegmentada::entregaPrimos()
{
    m_numeros.resize(m_seguros);
    return std::exchange(m_numeros, {});
}

/// Lists the candidates of some values of k.
void CribaSegmentada::generaTramo(int desde)
{
    m_candidatos = desde == 0 ? 0 : m_candidatos;
    for (int j = desde; j < std::min(desde + Tramo, ValoresPorBloque); ++j) {
        const auto lugar = 2 * static_cast<std::size_t>(j);
        const auto centro = static_cast<std::int64_t>(6 * (m_k + static_cast<std::uint64_t>(j)));
        m_vivo[lugar] = centro - 1 <= m_limite;
        m_vivo[lugar + 1] = centro + 1 <= m_limite;
        m_candidatos += (m_vivo[lugar] ? 1U : 0U) + (m_vivo[lugar + 1] ? 1U : 0U);
    }
}

/// Strikes the block by some of the primes 5, 7, 11, … whose squares lie within it; false when all
/// have struck. A composite falls by its least prime factor, whose square it is not below; so
/// primes with larger squares have nothing left to strike. A prime of this very block is reached
/// after all lesser ones have struck.
bool CribaSegmentada::tachaTramo(const Avance &avance)
{
    for (int i = 0; i < Tramo; ++i) {
        const std::uint64_t p = tachador();
        const std::uint64_t fin = ultimo();
        informa(fin, avance);
        if (p == 0 || p * p > fin)
            return false;
        if (m_orden == m_tachadores.size())
            m_tachadores.push_back(tachadorDe(p));
        tacha(m_tachadores[m_orden]);
        pasaAlSiguiente();
    }
    return true;
}

void CribaSegmentada::informa(std::uint64_t fin, const Avance &avance)
{
    constexpr std::uint64_t primerCandidato = 5;
    // The last number changes a few times a block, while this is asked for every prime: a quotient
    // each time would cost as much as the sieve.
    if (fin == m_informado || fin < primerCandidato)
        return;
    m_informado = fin;
    const auto porcentaje = static_cast<int>(100 * fin / static_cast<std::uint64_t>(m_limite));
    if (porcentaje != m_porcentaje && avance)
        avance(porcentaje);
    m_porcentaje = porcentaje;
}

/// The prime whose turn it is: one listed before this block by its order, then the first that is
/// alive in it from `m_lugar` on. 0 when the block is at its end.
std::uint64_t CribaSegmentada::tachador()
{
    if (!deEsteBloque())
        return m_numeros[m_orden + DosYTres];
    while (m_lugar < m_candidatos && !m_vivo[m_lugar])
        ++m_lugar;
    return m_lugar < m_candidatos ? candidato(2 * (m_k - 1) + m_lugar) : 0;
}

void CribaSegmentada::pasaAlSiguiente()
{
    m_lugar += deEsteBloque() ? 1 : 0;
    ++m_orden;
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
