// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/steps/PasosDeCarmichael.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/steps/PasosDeCadena.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A number taken apart by what its tests to some bases tell.
struct Diseccion
{
    QString n;
    QString testigo; ///< a base that is coprime to n and does not give 1, where there is one
    QStringList partes;
    QStringList sinDivisor; ///< the bases that are coprime to n
};

QString cociente(const QString &n, const QString &d)
{
    return calculaEntero(u"(%1)/(%2)"_s.arg(n, d)).value_or(QString());
}

/// A proper divisor of m that base^(n − 1) = 1 gives; empty where none comes of it.
QString divisorPorRaiz(const QString &m, const ParteImpar &exponente, const QString &base)
{
    QString x = PotenciaMod(base, exponente.d, m);
    for (int i = 0; i < exponente.s && x != u"1"_s; ++i) {
        const QString y = PotenciaMod(x, u"2"_s, m);
        if (y == u"1"_s) {
            const QString d = Mcd(anterior(x), m);
            return d == u"1"_s || d == m ? QString() : d;
        }
        x = y;
    }
    return {};
}

void parte(QStringList &partes, const QString &base, const ParteImpar &exponente)
{
    QStringList nuevas;
    for (const QString &m : std::as_const(partes)) {
        const QString comun = Mcd(base, m);
        const QString d = EsPrimo(m)                      ? QString()
                          : comun != u"1"_s && comun != m ? comun
                                                          : divisorPorRaiz(m, exponente, base);
        if (d.isEmpty())
            nuevas << m;
        else
            nuevas << d << cociente(m, d);
    }
    partes = nuevas;
}

Diseccion diseca(const QString &n)
{
    Diseccion diseccion{n, {}, {n}, {}};
    const QString menosUno = anterior(n);
    const ParteImpar exponente = parteImpar(menosUno);
    for (const QString &base : basesPrimas()) {
        if (Mcd(base, n) == u"1"_s) {
            if (PotenciaMod(base, menosUno, n) != u"1"_s) {
                diseccion.testigo = base;
                return diseccion;
            }
            diseccion.sinDivisor << base;
        }
        parte(diseccion.partes, base, exponente);
    }
    std::ranges::sort(diseccion.partes, {},
                      [](const QString &parte) { return std::pair(parte.size(), parte); });
    return diseccion;
}

Formula fermat(const QString &base, const QString &n, const QString &resto)
{
    return Formula(u"%1^{%2} == %3 (mod %4)"_s.arg(base, anterior(n), resto, n));
}

Paso pasoDeFermat(const Diseccion &diseccion)
{
    const QString &n = diseccion.n;
    const QString &base = diseccion.testigo;
    const QString resto = PotenciaMod(base, anterior(n), n);
    return {
        Traduce(
            u"%1 no es un número de Carmichael: el test de Fermat lo descubre con la base %2."_s)
            .arg(n, base),
        {Formula(u"%1(%2; %3) = 1"_s.arg(Traduce(u"mcd"_s), base, n)), fermat(base, n, resto),
         Formula(u"%1 != 1"_s.arg(resto))},
        Traduce(
            u"Un número de Carmichael es un compuesto que da 1 con todas las bases que no tienen "
            "factores comunes con él."_s)};
}

Paso pasoDeFactores(const Diseccion &diseccion)
{
    return {Traduce(u"%1 es compuesto: es el producto de estos primos."_s).arg(diseccion.n),
            {Formula(u"%1 = %2"_s.arg(diseccion.n, diseccion.partes.join(u'*')))},
            Traduce(u"Los factores salen de las raíces cuadradas de 1 que da el test fuerte."_s)};
}

Paso pasoDeKorselt(const Diseccion &diseccion)
{
    Paso paso{
        Traduce(
            u"Cada primo p de %1 cumple que p − 1 divide a %1 − 1: es un número de Carmichael."_s)
            .arg(diseccion.n),
        {},
        Traduce(u"Un compuesto sin factores repetidos es de Carmichael si y solo si p − 1 divide a "
                u"n − 1 para "
                "cada primo p que lo divide (Korselt)."_s)};
    for (const QString &p : diseccion.partes)
        paso.formulas << Formula(u"%1 - 1 | %2 - 1"_s.arg(p, diseccion.n));
    return paso;
}

Paso pasoDelDisfraz(const Diseccion &diseccion)
{
    Paso paso{
        Traduce(
            u"El test de Fermat no lo descubre: con cualquier base que no tenga factores comunes con %1 da 1."_s)
            .arg(diseccion.n)};
    for (const QString &base :
         diseccion.sinDivisor.first(std::min<qsizetype>(4, diseccion.sinDivisor.size())))
        paso.formulas << fermat(base, diseccion.n, u"1"_s);
    return paso;
}

/// A number that no base has betrayed, and that is none all the same.
Paso pasoSinKorselt(const Diseccion &diseccion, const QString &p)
{
    return {
        Traduce(
            u"%1 no es un número de Carmichael: no cumple el criterio de Korselt para el primo %2."_s)
            .arg(diseccion.n, p),
        {diseccion.partes.count(p) > 1 ? Formula(u"%1^2 | %2"_s.arg(p, diseccion.n))
                                       : Formula(u"%1 - 1 !| %2 - 1"_s.arg(p, diseccion.n))}};
}

bool cumpleKorselt(const Diseccion &diseccion, const QString &p)
{
    return diseccion.partes.count(p) == 1 && Modulo(anterior(diseccion.n), anterior(p)) == u"0"_s;
}

Pasos desenmascarado(const Diseccion &diseccion)
{
    const auto base = std::ranges::find_if(diseccion.sinDivisor, [&](const QString &b) {
        return !cadenaDeCuadrados(diseccion.n, b).pasa();
    });
    if (base == diseccion.sinDivisor.end())
        return Pasos(
            {pasoDeFactores(diseccion), pasoDeKorselt(diseccion), pasoDelDisfraz(diseccion)});
    const CadenaDeCuadrados cadena = cadenaDeCuadrados(diseccion.n, *base);
    constexpr qsizetype Previos = 3;
    return Pasos(Previos + pasosDeCadena(cadena), [diseccion, cadena](qsizetype i) {
        switch (i) {
        case 0:
            return pasoDeFactores(diseccion);
        case 1:
            return pasoDeKorselt(diseccion);
        case 2:
            return pasoDelDisfraz(diseccion);
        default:
            return pasoDeCadena(cadena, false, i - Previos);
        }
    });
}

} // namespace

Pasos pasosDeCarmichael(const QString &n)
{
    const Diseccion diseccion = diseca(n);
    if (!diseccion.testigo.isEmpty())
        return Pasos({pasoDeFermat(diseccion)});
    for (const QString &p : diseccion.partes) {
        if (!EsPrimo(p))
            return Pasos({Paso{Traduce(u"No se ha podido decidir si %1 es un número de Carmichael: "
                                       u"pasa el test de Fermat con las "
                                       "bases menores que 230, y no se ha partido en primos."_s)
                                   .arg(n)}});
    }
    for (const QString &p : diseccion.partes) {
        if (!cumpleKorselt(diseccion, p))
            return Pasos({pasoDeFactores(diseccion), pasoSinKorselt(diseccion, p)});
    }
    return desenmascarado(diseccion);
}
