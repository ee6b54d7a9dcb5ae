// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/CosteDeFactorizar.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/DivisionTentativa.h"
#include "lessons/primes/TablaDeFactores.h"
#include "shell/core/Lectura.h"
#include "shell/core/MejorDeVarias.h"

#include <algorithm>
#include <chrono>
#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

enum Algoritmo { Ingenuo, Mejorado, Avanzado };

using Reloj = std::chrono::steady_clock;

/// After a number that took longer there is no next one. The advanced algorithm does not yield.
std::chrono::nanoseconds paciencia(int algoritmo)
{
    return algoritmo == Avanzado ? 300ms : 1500ms;
}

/// One factorization; trial division yields by the ticket.
Tarea<> factoriza(int algoritmo, QString numero, Billete billete)
{
    if (algoritmo == Avanzado) {
        factorizaGrande(numero);
        co_return;
    }
    Moneda n = Moneda::deTexto(numero).value_or(Moneda());
    if (algoritmo == Ingenuo)
        co_await FactorizaIngenuo(n, billete);
    else
        co_await FactorizaMejorado(n, billete);
}

/// The time of a computation that is too short for one reading of the clock.
double repetido(int algoritmo, const QString &numero)
{
    MejorDeVarias tiempo;
    while (!tiempo.basta()) {
        const auto inicio = Reloj::now();
        for (std::int32_t i = 0; i < tiempo.veces(); ++i)
            factoriza(algoritmo, numero, {}).completa();
        tiempo.anota(Reloj::now() - inicio);
    }
    return tiempo.nanosegundos();
}

bool cabe(int algoritmo, const QString &numero)
{
    return algoritmo == Avanzado || !EsMayor(QString::number(Moneda::MaximoEntero), numero);
}

} // namespace

double MedidaDeCoste::logNumero() const
{
    constexpr qsizetype Cifras = 15; // of a double
    const qsizetype resto = std::max<qsizetype>(0, numero.size() - Cifras);
    return std::log10(numero.first(numero.size() - resto).toDouble()) + static_cast<double>(resto);
}

bool CosteDeFactorizar::terminado() const
{
    return m_bits > UltimosBits || std::ranges::count(m_retiradas, Retirada::Ninguna) == 0;
}

QString CosteDeFactorizar::sorteado() const
{
    if (m_numeros == Numeros::Primos)
        return PrimoAleatorio(static_cast<std::int16_t>(m_bits));
    const auto mitad = static_cast<std::int16_t>(m_bits / 2);
    return calculaEntero(PrimoAleatorio(mitad) + u'*' + PrimoAleatorio(mitad)).value_or(QString());
}

Tarea<std::optional<double>> CosteDeFactorizar::mide(int algoritmo, QString numero, Billete billete)
{
    const auto cedido = billete.tiempoCedido();
    const auto inicio = Reloj::now();
    co_await factoriza(algoritmo, numero, billete);
    if (billete.detenida())
        co_return std::nullopt;
    const auto duracion = Reloj::now() - inicio - (billete.tiempoCedido() - cedido);
    if (duracion > paciencia(algoritmo))
        m_retiradas.at(static_cast<std::size_t>(algoritmo)) = Retirada::Tiempo;
    constexpr auto Largo = 2ms;
    if (duracion < Largo)
        co_return repetido(algoritmo, numero);
    co_return std::chrono::duration<double, std::nano>(duracion).count();
}

Tarea<std::optional<MedidaDeCoste>> CosteDeFactorizar::siguiente(Billete billete)
{
    MedidaDeCoste medida;
    medida.bits = m_bits;
    medida.numero = sorteado();
    for (int algoritmo = 0; algoritmo < MedidaDeCoste::Algoritmos; ++algoritmo) {
        const auto lugar = static_cast<std::size_t>(algoritmo);
        if (m_retiradas[lugar] == Retirada::Ninguna && !cabe(algoritmo, medida.numero))
            m_retiradas[lugar] = Retirada::Tamano;
        if (m_retiradas[lugar] != Retirada::Ninguna)
            continue;
        co_await billete.ceder();
        try {
            medida.nanosegundos[lugar] = co_await mide(algoritmo, medida.numero, billete);
        } catch (const ErrorEjecucion &) {
            m_retiradas[lugar] = Retirada::Tamano; // it counts its divisors in 16 bits
        }
        if (billete.detenida())
            co_return std::nullopt;
    }
    m_bits += 2;
    co_return medida;
}
