// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/CuestionesFibonacci.h"

#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/fibonacci/Zeckendorf.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

QString palabraZeckendorf(FalloZeckendorf fallo, const QString &respuesta)
{
    switch (fallo) {
    case FalloZeckendorf::Ninguno:
        return Traduce(u"¡Correcto! Y no hay otra."_s);
    case FalloZeckendorf::NoEsSuma:
        return Traduce(u"Escriba números enteros, sin puntos, separados por el signo +."_s);
    case FalloZeckendorf::Cero:
        return Traduce(u"Quite el 0: no es sumando de ninguna representación."_s);
    case FalloZeckendorf::NoEsFibonacci:
        return Traduce(u"Algún sumando no es un número de Fibonacci."_s);
    case FalloZeckendorf::Consecutivos:
        return Traduce(u"La suma es buena, pero hay sumandos repetidos o consecutivos: "
                       u"sustitúyalos por otros."_s);
    case FalloZeckendorf::OtraSuma:
        return Traduce(u"Los sumandos son de Fibonacci, pero suman %1."_s)
            .arg(formatoEntero(Evalua(QString(respuesta))));
    }
    return {};
}

Juicio juzgaMcd(const QString &valor, int m, int n)
{
    const int d = std::gcd(m, n);
    if (valor == calculaEntero(u"fib(%1)"_s.arg(d)).value()) {
        return {true, Traduce(u"¡Correcto! Es F(%1) = %4, porque mcd(%2, %3) = %1."_s)
                          .arg(d)
                          .arg(m)
                          .arg(n)
                          .arg(formatoEntero(valor))};
    }
    if (valor == QString::number(d)) {
        return {false, Traduce(u"%1 es el máximo común divisor de los índices: falta calcular "
                               u"el número de Fibonacci que ocupa ese lugar."_s)
                           .arg(d)};
    }
    return {false,
            Traduce(u"No es ese. Empiece por el máximo común divisor de %1 y %2."_s).arg(m).arg(n)};
}

} // namespace

Cuestion sorteaZeckendorf()
{
    // One or two summands would be found at sight.
    constexpr int sumandosComoPoco = 3;
    int n = 0;
    do {
        n = AleatorioEntre(100, 2000);
    } while (representacionZeckendorf(QString::number(n)).size() < sumandosComoPoco);
    return cuestionZeckendorf(n);
}

Cuestion cuestionZeckendorf(int n)
{
    return {
        Traduce(u"Escriba %1 como suma de números de Fibonacci distintos, sin que haya dos "
                u"consecutivos."_s)
            .arg(n),
        Traduce(u"Una suma, como 34 + 13 + 1"_s),
        [n](const QString &respuesta) {
            const FalloZeckendorf fallo = juzgaZeckendorf(respuesta, n);
            return Juicio{fallo == FalloZeckendorf::Ninguno, palabraZeckendorf(fallo, respuesta)};
        },
        {FormaDeRespuesta::Suma}};
}

Cuestion sorteaMcd()
{
    // From 6 on F(d) is larger than d, so that one cannot be taken for the other.
    const int d = AleatorioEntre(6, 12);
    int una = 0;
    int otra = 0;
    do {
        una = AleatorioEntre(3, 8);
        otra = AleatorioEntre(3, 8);
    } while (std::gcd(una, otra) != 1);
    return cuestionMcd(d * una, d * otra);
}

Cuestion cuestionMcd(int m, int n)
{
    return {Traduce(u"¿Cuál es el máximo común divisor de F(%1) y F(%2)? (Se puede hallar sin "
                    u"calcularlos.)"_s)
                .arg(m)
                .arg(n),
            Traduce(u"Un número"_s),
            [m, n](const QString &valor) { return juzgaMcd(valor, m, n); },
            {FormaDeRespuesta::Entero, {}, {u"mcd"_s}}};
}
