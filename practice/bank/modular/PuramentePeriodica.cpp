// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/modular/SucesionDePractica.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList &SiONo()
{
    static const QStringList palabras = {u"sí"_s, u"no"_s};
    return palabras;
}

Ejercicio todasPuras(Sorteo &sorteo)
{
    const qint64 m = sorteo.de(QList<qint64>{6, 8, 9, 10, 12, 14, 15, 18, 20, 21, 22});
    const bool puras = sorteo.moneda();
    QList<qint64> betas;
    for (qint64 beta = 2; beta < m; ++beta) {
        if ((std::gcd(beta, m) == 1) == puras)
            betas << beta;
    }
    const qint64 beta = sorteo.de(betas);
    const qint64 alfa = sorteo.entre(2, m - 1);
    return {
        .enunciado = Traduce(u"f(n) = %1 · f(n − 1) + %2 · f(n − 2), módulo %3. ¿Es seguro, se "
                             "empiece como se empiece, que se repite desde el primer término?"_s)
                         .arg(alfa)
                         .arg(beta)
                         .arg(m),
        .forma = {FormaDeRespuesta::Palabra, SiONo()},
        .ejemplo = {},
        .esperada = Traduce(SiONo()[puras ? 0 : 1]),
        .juzga =
            [alfa, m, puras](const RespuestaLeida &r) {
                const bool dicho = r.palabra == SiONo()[0];
                if (dicho == puras)
                    return correcto();
                if ((std::gcd(alfa, m) == 1) == dicho)
                    return Fallo::mal(Traduce(u"¿Ha mirado el coeficiente de f(n − 1)? Importa el "
                                              "otro: hay que poder despejar f(n − 2)."_s),
                                      u"mira-alfa"_s);
                return Fallo::mal(Traduce(u"Mire si se puede despejar f(n − 2)."_s));
            },
        .pistas = {Traduce(u"¿Se puede dar marcha atrás, es decir, despejar f(n − 2)?"_s),
                   Traduce(u"Se puede cuando %1 tiene inverso módulo %2."_s).arg(beta).arg(m)},
        .solucion =
            [=] {
                return Pasos(QList<Paso>{
                    {puras
                         ? Traduce(
                               u"Sí: el coeficiente de f(n − 2) es primo con el módulo, y de cada "
                               "pareja se vuelve a la anterior."_s)
                         : Traduce(u"No: el coeficiente de f(n − 2) no es primo con el módulo, y "
                                   u"alguna "
                                   "sucesión tiene entrada."_s),
                     {Traduce(u"mcd"_s) +
                      u"(%1; %2) = %3"_s.arg(beta).arg(m).arg(std::gcd(beta, m))}}});
            }};
}

/// Sequences whose coefficient does not decide, those that return to their first pair and those
/// that do not.
const QList<SucesionDePractica> &dudosas(bool puras)
{
    const auto busca = [](bool cuales) {
        QList<SucesionDePractica> halladas;
        for (const qint64 m : {4, 6, 8, 9, 10}) {
            for (qint64 beta = 2; beta < m; ++beta) {
                for (qint64 i = 0; i < m * m * m; ++i) {
                    const SucesionDePractica s{1 + i % (m - 1), beta, i / m % m, i / m / m, m};
                    if (std::gcd(beta, m) == 1 || (s.f1 == 0 && s.f2 == 0))
                        continue;
                    const auto p = s.periodo();
                    if (p->longitud < 13 && (p->inicio == 1) == cuales)
                        halladas << s;
                }
            }
        }
        return halladas;
    };
    static const QList<SucesionDePractica> buenas = busca(true);
    static const QList<SucesionDePractica> malas = busca(false);
    return puras ? buenas : malas;
}

Ejercicio estaEsPura(Sorteo &sorteo)
{
    const bool pura = sorteo.moneda();
    const SucesionDePractica s = sorteo.de(dudosas(pura));
    return {
        .enunciado = Traduce(u"¿Se repite desde el primer término %1?"_s).arg(s.texto()),
        .forma = {FormaDeRespuesta::Palabra, SiONo()},
        .ejemplo = {},
        .esperada = Traduce(SiONo()[pura ? 0 : 1]),
        .juzga =
            [pura](const RespuestaLeida &r) {
                if ((r.palabra == SiONo()[0]) == pura)
                    return correcto();
                return pura ? Fallo::mal(Traduce(u"El coeficiente de f(n − 2) permite que haya "
                                                 "entrada, pero no en todas: ¿vuelve la primera "
                                                 "pareja?"_s),
                                         u"regla-de-todas"_s)
                            : Fallo::mal(Traduce(u"Escriba términos: ¿vuelve la primera pareja?"_s),
                                         u"hay-entrada"_s);
            },
        .pistas =
            {Traduce(u"El coeficiente de f(n − 2) no es primo con el módulo: hay que mirar si "
                     "vuelve la primera pareja."_s),
             Traduce(u"Los primeros son %1…"_s).arg(listaDe(s.valores(s.periodo()->inicio + 3)))},
        .solucion = [s] { return s.pasos(); }};
}

Ejercicio cuantosBetas(Sorteo &sorteo)
{
    const qint64 m =
        sorteo.de(QList<qint64>{12, 15, 18, 20, 21, 24, 26, 28, 30, 33, 35, 36, 40, 42, 45});
    const qint64 buenos = coprimosCon(m, 1, m).size();
    return {
        .enunciado =
            Traduce(u"f(n) = f(n − 1) + β · f(n − 2), módulo %1. ¿Con cuántos β, de 1 a %1, "
                    "es seguro que se repite desde el primer término, se empiece como se "
                    "empiece?"_s)
                .arg(m),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(buenos),
        .juzga = juicioDe(
            QString::number(buenos),
            {{QString::number(m - buenos), Traduce(u"Con esos no es seguro."_s), u"al-reves"_s},
             {QString::number(buenos - 1), Traduce(u"¿Ha contado el 1?"_s), u"sin-el-1"_s},
             {QString::number(m - 1), Traduce(u"No basta que β no sea 0 módulo m."_s),
              u"no-nulos"_s},
             {QString::number(m), Traduce(u"Con algunos puede haber entrada."_s), u"todos"_s}},
            Traduce(u"Cuente los β que tienen inverso."_s)),
        .pistas =
            {Traduce(u"¿Con qué β se puede despejar f(n − 2)?"_s),
             Traduce(u"Con los que son primos con %1: los cuenta la función φ de Euler."_s).arg(m)},
        .solucion = [=] {
            return Pasos(
                QList<Paso>{{Traduce(u"Son los β primos con el módulo, que tienen inverso."_s),
                             {u"φ(%1) = %2"_s.arg(m).arg(buenos)}}});
        }};
}

} // namespace

Ejercicio puramentePeriodica(int nivel, Sorteo &sorteo)
{
    return nivel == 1 ? todasPuras(sorteo) : nivel == 2 ? estaEsPura(sorteo) : cuantosBetas(sorteo);
}
