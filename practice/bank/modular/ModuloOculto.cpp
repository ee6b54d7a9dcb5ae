// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/modular/SucesionDePractica.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What is known of a modulus: differences that it divides, and remainders that it is greater than.
struct Indicios
{
    QList<qint64> diferencias;
    qint64 mayorResto;

    qint64 mcd() const
    {
        qint64 d = 0;
        for (const qint64 diferencia : diferencias)
            d = std::gcd(d, diferencia);
        return d;
    }
    /// Whether the greatest common divisor alone fits.
    bool deciden() const
    {
        const qint64 d = mcd();
        for (qint64 m = mayorResto + 1; m < d; ++m) {
            if (d % m == 0)
                return false;
        }
        return true;
    }
};

Juicio juicioDelModulo(const Indicios &indicios)
{
    return [indicios](const RespuestaLeida &respuesta) {
        const qint64 m = indicios.mcd();
        const qint64 dado = numeroDe(respuesta);
        if (dado == m)
            return correcto();
        if (dado > 0 && dado <= indicios.mayorResto)
            return Fallo::mal(
                Traduce(u"Un resto es siempre menor que el módulo, y hay alguno que no "
                        "lo sería."_s),
                u"resto-mayor"_s);
        if (dado > 0 && m % dado == 0)
            return Fallo::mal(Traduce(u"Cuadra, pero hay otro mayor."_s), u"divisor"_s);
        if (dado > 0 && indicios.diferencias[0] % dado == 0)
            return Fallo::mal(Traduce(u"Cuadra con el primer dato, pero no con todos."_s),
                              u"un-dato"_s);
        return Fallo::mal(Traduce(u"El módulo divide a cada valor menos su resto."_s));
    };
}

QList<Paso> pasosDelModulo(const QStringList &restas, const Indicios &indicios)
{
    QStringList numeros;
    for (const qint64 d : indicios.diferencias)
        numeros << QString::number(qAbs(d));
    Paso primero{Traduce(u"El módulo divide a cada valor menos su resto."_s)};
    for (const QString &resta : restas)
        primero.formulas << Formula(resta);
    return {primero,
            {Traduce(u"También divide a su máximo común divisor, y pasa de todos los restos."_s),
             {Traduce(u"mcd"_s) + u"(%1) = %2"_s.arg(numeros.join(u"; "_s)).arg(indicios.mcd()),
              u"%1 > %2"_s.arg(indicios.mcd()).arg(indicios.mayorResto)}}};
}

/// Three Fibonacci numbers that follow each other, with their remainders.
struct Recuerdo
{
    int lugar;
    qint64 m;

    QList<qint64> valores() const
    {
        return {fibonacciDe(lugar), fibonacciDe(lugar + 1), fibonacciDe(lugar + 2)};
    }
    Indicios indicios() const
    {
        Indicios indicios{{}, 0};
        for (const qint64 f : valores()) {
            indicios.diferencias << f - f % m;
            indicios.mayorResto = std::max(indicios.mayorResto, f % m);
        }
        return indicios;
    }
};

Ejercicio deFibonacci(Sorteo &sorteo)
{
    static const QList<Recuerdo> recuerdos = [] {
        QList<Recuerdo> hallados;
        for (int lugar = 9; lugar < 15; ++lugar) {
            for (qint64 m = 7; m < 34; ++m) {
                const Recuerdo r{lugar, m};
                if (r.indicios().mcd() == m && r.indicios().deciden())
                    hallados << r;
            }
        }
        return hallados;
    }();
    const Recuerdo r = sorteo.de(recuerdos);
    QStringList datos;
    QStringList restas;
    const QList<qint64> valores = r.valores();
    for (int i = 0; i < 3; ++i) {
        datos << u"F(%1) = %2 → %3"_s.arg(r.lugar + i).arg(valores[i]).arg(valores[i] % r.m);
        restas << u"%1 - %2 = %3"_s.arg(valores[i])
                      .arg(valores[i] % r.m)
                      .arg(valores[i] - valores[i] % r.m);
    }
    return {
        .enunciado = Traduce(u"Los restos de tres números de Fibonacci módulo m son: %1. ¿Cuánto "
                             "vale m?"_s)
                         .arg(datos.join(u", "_s)),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(r.m),
        .juzga = juicioDelModulo(r.indicios()),
        .pistas = {Traduce(u"El módulo divide a cada valor menos su resto, y es mayor que todos "
                           "los restos."_s),
                   Traduce(u"Divide a %1 y a %2."_s)
                       .arg(r.indicios().diferencias[0])
                       .arg(r.indicios().diferencias[1])},
        .solucion = [=] { return Pasos(pasosDelModulo(restas, r.indicios())); }};
}

/// A sequence whose first four values determine its coefficients: f(2)² − f(1)·f(3) is a unit.
SucesionDePractica sucesionDeterminada(Sorteo &sorteo)
{
    const qint64 p = sorteo.de(QList<qint64>{5, 7, 11, 13});
    SucesionDePractica s{sorteo.entre(1, p - 1), 0, sorteo.entre(1, p - 1), sorteo.entre(1, p - 1),
                         p};
    QList<qint64> betas;
    for (s.beta = 1; s.beta < p; ++s.beta) {
        const QList<qint64> f = s.valores(3);
        if ((f[1] * f[1] - f[0] * f[2]) % p != 0)
            betas << s.beta;
    }
    s.beta = sorteo.de(betas);
    return s;
}

Fallo juzgaCoeficientes(const RespuestaLeida &respuesta, const SucesionDePractica &s)
{
    if (respuesta.numeros.size() != 2)
        return Fallo::mal(Traduce(u"Se piden dos números: α y β."_s), u"cuantos"_s);
    const auto congruente = [&](qsizetype i, qint64 valor) {
        return restoDe(respuesta.numeros[i], s.m) == restoPositivo(valor, s.m);
    };
    if (congruente(0, s.alfa) && congruente(1, s.beta))
        return correcto();
    if (congruente(0, s.beta) && congruente(1, s.alfa))
        return Fallo::mal(Traduce(u"Ha cambiado un coeficiente por el otro."_s), u"cambiados"_s);
    const QList<qint64> f = s.valores(3);
    const qint64 a = numeroDe(respuesta, 0);
    const qint64 b = numeroDe(respuesta, 1);
    if (qAbs(a / 2) < 1'000'000'000 && qAbs(b / 2) < 1'000'000'000 &&
        (a * f[1] + b * f[0] - f[2]) % s.m == 0)
        return Fallo::mal(Traduce(u"Con esos sale el tercer término, pero no el cuarto."_s),
                          u"una-ecuacion"_s);
    return Fallo::mal(Traduce(u"Con esos coeficientes no sale el tercer término."_s));
}

Pasos pasosDeCoeficientes(const SucesionDePractica &s)
{
    const QList<qint64> f = s.valores(4);
    const qint64 p = s.m;
    const qint64 det = ((f[1] * f[1] - f[0] * f[2]) % p + p) % p;
    const qint64 inverso = inversoModular(det, p);
    return Pasos(QList<Paso>{
        {Traduce(u"El tercer término y el cuarto son dos ecuaciones."_s),
         {u"%1*%2 + %3*%4 == %5 (mod %6)"_s.arg(s.alfa)
              .arg(f[1])
              .arg(s.beta)
              .arg(f[0])
              .arg(f[2])
              .arg(p),
          u"%1*%2 + %3*%4 == %5 (mod %6)"_s.arg(s.alfa)
              .arg(f[2])
              .arg(s.beta)
              .arg(f[1])
              .arg(f[3])
              .arg(p)}},
        {Traduce(u"Se eliminan α o β; el número por el que quedan multiplicadas tiene inverso."_s),
         {u"%1^2 - %2*%3 == %4 (mod %5)"_s.arg(f[1]).arg(f[0]).arg(f[2]).arg(det).arg(p),
          u"%1*%2 == 1 (mod %3)"_s.arg(det).arg(inverso).arg(p)}},
        {Traduce(u"Quedan α = %1 y β = %2."_s).arg(s.alfa).arg(s.beta),
         {u"%1*(%2*%3 - %4*%5) == %6 (mod %7)"_s.arg(inverso)
              .arg(f[2])
              .arg(f[1])
              .arg(f[0])
              .arg(f[3])
              .arg(s.alfa)
              .arg(p),
          u"%1*(%2*%3 - %4^2) == %5 (mod %6)"_s.arg(inverso)
              .arg(f[1])
              .arg(f[3])
              .arg(f[2])
              .arg(s.beta)
              .arg(p)}}});
}

Ejercicio coeficientes(Sorteo &sorteo)
{
    const SucesionDePractica s = sucesionDeterminada(sorteo);
    const QList<qint64> f = s.valores(4);
    return {.enunciado =
                Traduce(u"Módulo %1, una sucesión f(n) = α · f(n − 1) + β · f(n − 2) empieza "
                        "por %2. Halle α y β, por este orden."_s)
                    .arg(QString::number(s.m), listaDe(f)),
            .forma = {FormaDeRespuesta::Lista},
            .ejemplo = Traduce(u"Dos números: 3, 5"_s),
            .esperada = u"%1, %2"_s.arg(s.alfa).arg(s.beta),
            .juzga = [s](const RespuestaLeida &r) { return juzgaCoeficientes(r, s); },
            .pistas = {Traduce(u"Cada término a partir del tercero es una ecuación."_s),
                       Traduce(u"%1α + %2β ≡ %3 y %3α + %1β ≡ %4."_s)
                           .arg(f[1])
                           .arg(f[0])
                           .arg(f[2])
                           .arg(f[3])},
            .solucion = [s] { return pasosDeCoeficientes(s); }};
}

Ejercicio mayorModulo(Sorteo &sorteo)
{
    const qint64 m = sorteo.entre(11, 40);
    // The first values are large and the coefficients at least 2: the third is reduced for sure.
    const SucesionDePractica s{sorteo.entre(2, 5), sorteo.entre(2, 5), sorteo.entre(m / 2, m - 1),
                               sorteo.entre(m / 2, m - 1), m};
    const QList<qint64> f = s.valores(5);
    Indicios indicios{{}, *std::max_element(f.begin(), f.end())};
    QStringList restas;
    for (int i = 2; i < 5; ++i) {
        indicios.diferencias << s.alfa * f[i - 1] + s.beta * f[i - 2] - f[i];
        restas << u"%1*%2 + %3*%4 - %5 = %6"_s.arg(s.alfa)
                      .arg(f[i - 1])
                      .arg(s.beta)
                      .arg(f[i - 2])
                      .arg(f[i])
                      .arg(indicios.diferencias.back());
    }
    return {.enunciado = Traduce(u"f(n) = %1 · f(n − 1) + %2 · f(n − 2), módulo m, empieza por %3. "
                                 "¿Cuál es el mayor m con el que cuadra?"_s)
                             .arg(QString::number(s.alfa), QString::number(s.beta), listaDe(f)),
            .forma = {FormaDeRespuesta::Entero},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = QString::number(indicios.mcd()),
            .juzga = juicioDelModulo(indicios),
            .pistas = {Traduce(u"Calcule sin reducir el tercer término, el cuarto y el quinto: el "
                               "módulo divide a lo que sobra."_s),
                       Traduce(u"Divide a %1 y a %2."_s)
                           .arg(indicios.diferencias[0])
                           .arg(indicios.diferencias[1])},
            .solucion = [=] { return Pasos(pasosDelModulo(restas, indicios)); }};
}

} // namespace

Ejercicio moduloOculto(int nivel, Sorteo &sorteo)
{
    return nivel == 1   ? deFibonacci(sorteo)
           : nivel == 2 ? coeficientes(sorteo)
                        : mayorModulo(sorteo);
}
