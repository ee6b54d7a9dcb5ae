// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/Euclides.h"

#include "lessons/euclid/PasosDeEuclides.h"
#include "shell/core/ModGlobal.h"

#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

Pasos divisionesDe(qint64 a, qint64 b)
{
    return pasosDeEuclides({Moneda::deEntero(a), Moneda::deEntero(b), AlgoritmoEuclides::Estandar});
}

Fallo juzgaMcd(const RespuestaLeida &r, qint64 a, qint64 b)
{
    const qint64 d = std::gcd(a, b);
    const qint64 dado = r.numeros.constFirst().toLongLong();
    if (dado == d)
        return Fallo::bien(Traduce(u"¡Correcto!"_s));
    if (dado == std::lcm(a, b))
        return Fallo::mal(Traduce(u"Ese es el mínimo común múltiplo."_s), u"mcm"_s);
    if (dado > 0 && a % dado == 0 && b % dado == 0)
        return Fallo::mal(Traduce(u"Divide a los dos, pero no es el mayor que lo hace."_s),
                          u"divisor-menor"_s);
    return Fallo::mal(Traduce(u"Ese número no divide a los dos."_s), u"no-divide"_s);
}

/// Two numbers without a common divisor for whose algorithm so many divisions are needed: made from
/// the last one upwards.
std::pair<qint64, qint64> coprimosDe(int divisiones, Sorteo &sorteo)
{
    qint64 b = 1;
    qint64 a = sorteo.entre(2, 5); // the last quotient is never 1
    for (int i = 1; i < divisiones; ++i)
        b = std::exchange(a, sorteo.entre(1, 4) * a + b);
    return {a, b};
}

Ejercicio mcd(int nivel, Sorteo &sorteo)
{
    const qint64 d = sorteo.entre(2, 12 * nivel);
    const auto coprimos =
        coprimosDe(static_cast<int>(sorteo.entre(2, 3)) + 2 * (nivel - 1), sorteo);
    const qint64 a = coprimos.first * d;
    const qint64 b = coprimos.second * d;
    return {.enunciado = Traduce(u"¿Cuál es el máximo común divisor de %1 y %2?"_s).arg(a).arg(b),
            .forma = {FormaDeRespuesta::Entero, {}, {u"mcd"_s}},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = QString::number(d),
            .juzga = [a, b](const RespuestaLeida &r) { return juzgaMcd(r, a, b); },
            .pistas = {Traduce(u"Divida el mayor entre el menor y quédese con el resto."_s),
                       Traduce(u"El primer resto es %1: siga con %2 y %1."_s).arg(a % b).arg(b)},
            .solucion = [a, b] { return divisionesDe(a, b); }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeEuclides()
{
    return {{u"euclides.mcd"_s, u"Máximo común divisor"_s, mcd}};
}
