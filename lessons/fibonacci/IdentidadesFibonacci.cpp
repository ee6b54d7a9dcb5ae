// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/IdentidadesFibonacci.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

QString fib(int n)
{
    return calculaEntero(u"fib(%1)"_s.arg(n)).value();
}

/// F(1) + … + F(n), and the sum of their squares, added up one by one.
struct Sumas
{
    QString simple = u"0"_s;
    QString cuadrados = u"0"_s;
};

Sumas sumasHasta(int n)
{
    // In blocks: an expression a summand would convert numbers of thousands of digits n times.
    constexpr int bloque = 100;
    Sumas sumas;
    for (int desde = 1; desde <= n; desde += bloque) {
        const int hasta = std::min(n, desde + bloque - 1);
        for (int i = desde; i <= hasta; ++i) {
            sumas.simple += u"+fib(%1)"_s.arg(i);
            sumas.cuadrados += u"+fib(%1)^2"_s.arg(i);
        }
        sumas = {calculaEntero(sumas.simple).value(), calculaEntero(sumas.cuadrados).value()};
    }
    return sumas;
}

} // namespace

QList<IdentidadProbada> pruebaIdentidades(int m, int n)
{
    const Sumas sumas = sumasHasta(n);
    const QString f = fib(n);
    const QString siguiente = fib(n + 1);
    const QString anterior = fib(n - 1);
    return {{u"Cassini"_s, u"F(n−1) · F(n+1) − F(n)² = (−1)ⁿ"_s,
             calculaEntero(anterior + u'*' + siguiente + u'-' + f + u"^2"_s).value(),
             n % 2 == 0 ? u"1"_s : u"-1"_s},
            {u"Máximo común divisor"_s, u"mcd(F(m), F(n)) = F(mcd(m, n))"_s, Mcd(fib(m), f),
             fib(std::gcd(m, n))},
            {u"Suma de índices"_s, u"F(m+n) = F(m) · F(n+1) + F(m−1) · F(n)"_s, fib(m + n),
             calculaEntero(fib(m) + u'*' + siguiente + u'+' + fib(m - 1) + u'*' + f).value()},
            {u"Suma de los primeros"_s, u"F(1) + F(2) + … + F(n) = F(n+2) − 1"_s, sumas.simple,
             calculaEntero(fib(n + 2) + u"-1"_s).value()},
            {u"Suma de cuadrados"_s, u"F(1)² + F(2)² + … + F(n)² = F(n) · F(n+1)"_s,
             sumas.cuadrados, calculaEntero(f + u'*' + siguiente).value()}};
}
