// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/GrupoUnidades.h"

#include "bignum/gateway/ErrorEjecucion.h"

#include <algorithm>
#include <numeric>

namespace {

QList<std::int32_t> primosDe(std::int32_t n)
{
    QList<std::int32_t> primos;
    for (std::int32_t p = 2; p * p <= n; ++p) {
        if (n % p != 0)
            continue;
        primos << p;
        while (n % p == 0)
            n /= p;
    }
    if (n > 1)
        primos << n;
    return primos;
}

/// The order of an element whose power `multiplo` is 1. (Source: H. Cohen, A Course in
/// Computational Algebraic Number Theory, 1993, algorithm 1.4.3.)
std::int32_t orden(std::int32_t a, std::int32_t n, std::int32_t multiplo,
                   const QList<std::int32_t> &primosDelMultiplo)
{
    std::int32_t k = multiplo;
    for (const std::int32_t p : primosDelMultiplo) {
        while (k % p == 0 && potenciaMod(a, k / p, n) == 1 % n)
            k /= p;
    }
    return k;
}

} // namespace

std::int32_t potenciaMod(std::int64_t base, std::int64_t exponente, std::int32_t m)
{
    std::int64_t cuadrado = (base % m + m) % m, resultado = 1 % m;
    for (; exponente > 0; exponente /= 2) {
        if (exponente % 2 != 0)
            resultado = resultado * cuadrado % m;
        cuadrado = cuadrado * cuadrado % m;
    }
    return static_cast<std::int32_t>(resultado);
}

GrupoUnidades::GrupoUnidades(std::int32_t n) : m_n(n)
{
    if (n < 1 || n > MayorModulo)
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido);
    for (std::int32_t a = 0; a < n; ++a) {
        if (std::gcd(a, n) == 1)
            m_unidades.append({a, 0, 0});
    }
    const QList<std::int32_t> primos = primosDe(fi());
    for (Unidad &u : m_unidades) {
        u.orden = orden(u.valor, n, fi(), primos);
        u.inverso = potenciaMod(u.valor, u.orden - 1, n);
        m_exponente = std::max(m_exponente, u.orden);
    }
}

int GrupoUnidades::numeroDeRaicesPrimitivas() const
{
    return static_cast<int>(std::count_if(m_unidades.begin(), m_unidades.end(),
                                          [this](const Unidad &u) { return esRaizPrimitiva(u); }));
}

const Unidad *GrupoUnidades::unidad(std::int32_t a) const
{
    const std::int32_t valor = representante(a);
    const auto lugar =
        std::lower_bound(m_unidades.begin(), m_unidades.end(), valor,
                         [](const Unidad &u, std::int32_t v) { return u.valor < v; });
    return lugar != m_unidades.end() && lugar->valor == valor ? &*lugar : nullptr;
}

std::int32_t GrupoUnidades::representante(std::int64_t a) const
{
    return static_cast<std::int32_t>((a % m_n + m_n) % m_n);
}

PotenciasDeElemento GrupoUnidades::potencias(std::int32_t a) const
{
    PotenciasDeElemento resultado;
    QList<int> lugar(m_n, -1);
    std::int32_t potencia = 1 % m_n;
    while (lugar[potencia] < 0) {
        lugar[potencia] = static_cast<int>(resultado.valores.size());
        resultado.valores << potencia;
        potencia = representante(std::int64_t(potencia) * a);
    }
    resultado.vuelta = lugar[potencia];
    return resultado;
}
