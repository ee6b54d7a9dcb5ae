// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/primes/Testigos.h"

#include "lessons/primes/steps/PasosDeCadena.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "practice/bank/shared/PasosDelBanco.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/PotenciaEscrita.h"
#include "shell/core/steps/PasosDePotencia.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What is left of n − 1 without its factors 2.
qint64 parteImpar(qint64 n)
{
    qint64 d = n - 1;
    while (d % 2 == 0)
        d /= 2;
    return d;
}

/// Whether b proves that n is composite: by Fermat's test, or by the strong one. (Source: M. O.
/// Rabin, "Probabilistic algorithm for testing primality", 1980.)
bool esTestigo(qint64 b, qint64 n, bool fuerte)
{
    const auto m = static_cast<std::int32_t>(n);
    if (!fuerte)
        return potenciaMod(b, n - 1, m) != 1;
    qint64 x = potenciaMod(b, parteImpar(n), m);
    if (x == 1)
        return false;
    for (qint64 e = parteImpar(n); e < n - 1; e *= 2, x = x * x % n) {
        if (x == n - 1)
            return false;
    }
    return true;
}

/// An odd composite number with its bases from 2 to n − 2, by whether they are witnesses.
struct Bases
{
    qint64 n;
    QList<qint64> testigos, mentirosas;
};

/// Those of a range that have bases of both kinds.
QList<Bases> basesDe(qint64 desde, qint64 hasta, bool fuerte)
{
    QList<Bases> todas;
    for (qint64 n = desde | 1; n <= hasta; n += 2) {
        Bases bases{n, {}, {}};
        for (qint64 b = 2; !esPrimoPequeno(n) && b <= n - 2; ++b)
            (esTestigo(b, n, fuerte) ? bases.testigos : bases.mentirosas) << b;
        if (!bases.testigos.isEmpty() && !bases.mentirosas.isEmpty())
            todas << bases;
    }
    return todas;
}

const QList<Bases> &basesDelNivel(int nivel)
{
    static const std::array<QList<Bases>, 3> niveles{basesDe(15, 99, false), basesDe(25, 299, true),
                                                     basesDe(301, 700, true)};
    return niveles[static_cast<std::size_t>(nivel - 1)];
}

Fallo juzgaTestigo(const RespuestaLeida &r, qint64 b, qint64 n, bool fuerte)
{
    const bool testigo = esTestigo(b, n, fuerte);
    const qint64 resto =
        potenciaMod(b, fuerte ? parteImpar(n) : n - 1, static_cast<std::int32_t>(n));
    if (r.palabra == u"sí"_s)
        return Fallo::mal(Traduce(u"Si cree que lo es, escriba el resto que lo prueba."_s),
                          u"sin-resto"_s);
    if (r.palabra == u"no"_s)
        return testigo ? Fallo::mal(Traduce(u"Sí lo es: la prueba descubre que es compuesto."_s),
                                    u"testigo-negado"_s)
                       : correcto();
    if (restoDe(r.numeros[0], n) != resto)
        return Fallo::mal(Traduce(u"Esa potencia no deja ese resto."_s), u"otro-resto"_s);
    if (!testigo)
        return Fallo::mal(
            Traduce(u"El resto es ese, pero con él %1 pasa la prueba: no es testigo."_s).arg(n),
            u"pasa-la-prueba"_s);
    return numeroCorto(r) == resto ? correcto() : sinReducir(n);
}

Pasos pasosDeTestigo(qint64 b, qint64 n, bool fuerte)
{
    if (fuerte) {
        const CadenaDeCuadrados cadena = cadenaDeCuadrados(QString::number(n), QString::number(b));
        return Pasos(pasosDeCadena(cadena),
                     [cadena](qsizetype i) { return pasoDeCadena(cadena, false, i); });
    }
    const qint64 resto = potenciaMod(b, n - 1, static_cast<std::int32_t>(n));
    const QString final =
        resto != 1
            ? Traduce(u"Con un primo no podría salir eso: %1 es testigo de que %2 es compuesto."_s)
            : Traduce(
                  u"Lo mismo saldría con un primo: %1 no es testigo, aunque %2 sea compuesto."_s);
    return seguidos(pasosDePotencia(QString::number(b), QString::number(n - 1), QString::number(n)),
                    {pasoCon(final.arg(b).arg(n),
                             {u"%1^{%2} == %3 (mod %4)"_s.arg(b).arg(n - 1).arg(resto).arg(n)})});
}

QString preguntaDeTestigo(bool fuerte)
{
    if (!fuerte)
        return Traduce(
            u"¿Es %1 testigo de que %2 es compuesto, según la prueba de Fermat? Si lo es, "
            "escriba el resto de %3 entre %2; si no, «no»."_s);
    return Traduce(
        u"¿Es %1 testigo de que %2 es compuesto, según la prueba de Miller y Rabin? Si lo "
        "es, escriba el resto de %3 entre %2; si no, «no»."_s);
}

Ejercicio testigo(int nivel, Sorteo &sorteo)
{
    const bool fuerte = nivel > 1;
    const Bases &bases = sorteo.de(basesDelNivel(nivel));
    const qint64 n = bases.n;
    const qint64 b = sorteo.de(sorteo.moneda() ? bases.testigos : bases.mentirosas);
    const qint64 e = fuerte ? parteImpar(n) : n - 1;
    const qint64 resto = potenciaMod(b, e, static_cast<std::int32_t>(n));
    return {
        .enunciado = preguntaDeTestigo(fuerte).arg(QString::number(b), QString::number(n),
                                                   potenciaEscrita(b, e)),
        .forma = {FormaDeRespuesta::Entero, {u"sí"_s, u"no"_s}, {u"^ mod"_s}},
        .ejemplo = Traduce(u"Una palabra o un número"_s),
        .esperada = esTestigo(b, n, fuerte) ? QString::number(resto) : Traduce(u"no"_s),
        .juzga = [b, n, fuerte](const RespuestaLeida &r) { return juzgaTestigo(r, b, n, fuerte); },
        .pistas = {fuerte ? Traduce(u"Con un primo, la potencia sería 1, o alguno de sus cuadrados "
                                    "sucesivos −1."_s)
                          : Traduce(u"Con un primo, el resto sería 1."_s),
                   Traduce(u"El resto es %1."_s).arg(resto)},
        .solucion = [b, n, fuerte] { return pasosDeTestigo(b, n, fuerte); }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeTestigos()
{
    return {{u"primos.testigo"_s, u"Testigos de que un número es compuesto"_s, testigo}};
}
