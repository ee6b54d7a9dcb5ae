// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/congruences/Congruencias.h"

#include "practice/bank/congruences/Problemas.h"
#include "practice/bank/congruences/Sistema.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "practice/bank/shared/PasosDelBanco.h"
#include "shell/core/ModGlobal.h"

#include <array>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

QString congruencia(const Sistema &s, qsizetype i)
{
    return u"x ≡ %1 (mod %2)"_s.arg(s.restos[i]).arg(s.modulos[i]);
}

/// Any solution is right.
Fallo juzgaSistema(const RespuestaLeida &r, const Sistema &s)
{
    const QString &x = r.numeros[0];
    const qsizetype falla = s.primeraSinCumplir(x);
    if (falla < 0)
        return Fallo::bien(Traduce(u"¡Correcto!"_s) + u' ' +
                           Traduce(u"Las soluciones se repiten cada %1."_s).arg(s.periodo()));
    const qsizetype cumple = s.cuantasCumple(x);
    if (cumple == 0)
        return Fallo::mal(Traduce(u"No cumple ninguna de las congruencias."_s), u"ninguna"_s);
    return Fallo::mal(Traduce(u"No cumple %1: su resto es %2."_s)
                          .arg(congruencia(s, falla))
                          .arg(restoDe(x, s.modulos[falla])),
                      u"no-todas"_s);
}

Ejercicio conSistema(const Sistema &s)
{
    Sistema dos = s;
    dos.restos.resize(2);
    dos.modulos.resize(2);
    const QString segunda =
        s.modulos.size() > 2
            ? Traduce(u"Las dos primeras las cumple %1, y cada %2 otro."_s)
                  .arg(*dos.solucion())
                  .arg(dos.periodo())
            : Traduce(u"La primera la cumplen %1, %2, %3…: busque el que cumple la segunda."_s)
                  .arg(s.restos[0])
                  .arg(s.restos[0] + s.modulos[0])
                  .arg(s.restos[0] + 2 * s.modulos[0]);
    return {
        .enunciado = Traduce(u"Encuentre un número entero x que cumpla %1."_s).arg(s.texto()),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(*s.solucion()),
        .juzga = [s](const RespuestaLeida &r) { return juzgaSistema(r, s); },
        .pistas = {Traduce(
                       u"Escriba los números que cumplen una congruencia y vea cuál cumple otra; "
                       "empiece por el módulo mayor."_s),
                   segunda},
        .solucion = [s] { return pasosDeSistema(s); }};
}

/// Numbers of which every two are coprime.
const QList<qint64> &modulosCoprimos(int nivel)
{
    static const std::array<QList<qint64>, 3> modulos{
        {{4, 5, 7, 9, 11}, {7, 9, 10, 11, 13, 17}, {13, 16, 17, 19, 21, 23, 25, 29, 31}}};
    return modulos[static_cast<std::size_t>(nivel - 1)];
}

Ejercicio dosModulos(int nivel, Sorteo &sorteo)
{
    return conSistema(sistemaDe(modulosCoprimos(nivel), 2, sorteo));
}

Ejercicio tresModulos(int nivel, Sorteo &sorteo)
{
    return conSistema(sistemaDe(modulosCoprimos(nivel), 3, sorteo));
}

/// The answer is a solution and how it repeats, or a divisor of both moduli that forbids one.
Fallo juzgaNoCoprimos(const RespuestaLeida &r, const Sistema &s)
{
    if (!r.palabra.isEmpty())
        return Fallo::mal(Traduce(u"Diga también por qué, con los números que se piden."_s),
                          u"sin-porque"_s);
    if (r.numeros.size() > 2)
        return Fallo::mal(Traduce(u"Se piden dos números si tiene solución, y uno si no."_s),
                          u"cuantos"_s);
    if (r.numeros.size() == 1 && s.primeraSinCumplir(r.numeros[0]) < 0)
        return Fallo::mal(Traduce(u"Es una solución; diga también cada cuánto se repiten."_s),
                          u"sin-periodo"_s);
    if (r.numeros.size() == 1) {
        const qint64 d = std::abs(numeroCorto(r).value_or(0));
        if (d == 0 || s.modulos[0] % d != 0 || s.modulos[1] % d != 0)
            return Fallo::mal(Traduce(u"Ese número no divide a los dos módulos."_s),
                              u"no-divide"_s);
        return (s.restos[0] - s.restos[1]) % d != 0
                   ? correcto()
                   : Fallo::mal(
                         Traduce(
                             u"Divide a los dos módulos, pero módulo %1 los restos coinciden: no "
                             "prueba nada."_s)
                             .arg(d),
                         u"no-prueba"_s);
    }
    const qsizetype falla = s.primeraSinCumplir(r.numeros[0]);
    if (falla >= 0)
        return Fallo::mal(Traduce(u"No cumple %1: su resto es %2."_s)
                              .arg(congruencia(s, falla))
                              .arg(restoDe(r.numeros[0], s.modulos[falla])),
                          u"no-cumple"_s);
    const auto periodo = numeroCorto(r, 1);
    if (periodo == s.periodo() || periodo == -s.periodo())
        return correcto();
    if (periodo == s.modulos[0] * s.modulos[1])
        return Fallo::mal(
            Traduce(u"Se repiten antes de llegar al producto: los módulos tienen un divisor "
                    "común."_s),
            u"producto"_s);
    return Fallo::mal(Traduce(u"El primero es una solución; revise cada cuánto se repiten."_s),
                      u"periodo"_s);
}

/// Two moduli d·p, d·q, and remainders that differ and agree modulo d or not.
Sistema sistemaNoCoprimo(int nivel, Sorteo &sorteo)
{
    const qint64 d = sorteo.entre(2, 3 * nivel + 1);
    const QList<qint64> pq = sorteo.barajada(QList<qint64>{3, 4, 5, 7}).first(2);
    const bool soluble = sorteo.moneda();
    const qint64 r = sorteo.entre(1, d * pq[0] - 1);
    const qint64 clase = (r + (soluble ? 0 : sorteo.entre(1, d - 1))) % d;
    const qint64 otro = sorteo.de(
        losQue(0, pq[1] - 1, [&](qint64 k) { return clase + d * k != r && clase + d * k > 0; }));
    return {{r, clase + d * otro}, {d * pq[0], d * pq[1]}};
}

Ejercicio noCoprimos(int nivel, Sorteo &sorteo)
{
    const Sistema s = sistemaNoCoprimo(nivel, sorteo);
    const auto x = s.solucion();
    const qint64 d = std::gcd(s.modulos[0], s.modulos[1]);
    return {
        .enunciado =
            Traduce(u"¿Hay un x que cumpla %1? Si lo hay, escriba uno y cada cuánto se repiten "
                    "(dos números); si no, un divisor común de los módulos que lo pruebe (un "
                    "número)."_s)
                .arg(s.texto()),
        .forma = {FormaDeRespuesta::Lista, {u"sí"_s, u"no"_s}},
        .ejemplo = Traduce(u"Uno o dos números"_s),
        .esperada = x ? listaDe({*x, s.periodo()}) : QString::number(d),
        .juzga = [s](const RespuestaLeida &r) { return juzgaNoCoprimos(r, s); },
        .pistas = {Traduce(
                       u"Compare los dos restos módulo los divisores comunes de los módulos."_s),
                   Traduce(u"El máximo común divisor de los módulos es %1."_s).arg(d)},
        .solucion = [s] { return pasosDeSistema(s); }};
}

/// The least number above a bound.
struct MenorNumero
{
    Sistema sistema;
    qint64 cota;

    qint64 valor() const
    {
        const qint64 x = *sistema.solucion(), m = sistema.periodo();
        return x > cota ? x : x + ((cota - x) / m + 1) * m;
    }
};

Fallo juzgaMinimo(const RespuestaLeida &r, const MenorNumero &n)
{
    const auto dado = numeroCorto(r);
    if (dado == n.valor())
        return correcto();
    const qsizetype falla = n.sistema.primeraSinCumplir(r.numeros[0]);
    if (falla >= 0)
        return Fallo::mal(Traduce(u"Al dividirlo entre %1 el resto es %2."_s)
                              .arg(n.sistema.modulos[falla])
                              .arg(restoDe(r.numeros[0], n.sistema.modulos[falla])),
                          u"no-cumple"_s);
    if (dado && *dado <= n.cota)
        return Fallo::mal(
            Traduce(u"Da esos restos, pero tiene que ser mayor que %1."_s).arg(n.cota),
            u"no-mayor"_s);
    return Fallo::mal(Traduce(u"Da esos restos, pero no es el menor."_s), u"no-menor"_s);
}

/// Level 1: the same remainder by two moduli; 2: always as much short of a multiple of three; 3:
/// different remainders above a bound.
MenorNumero menorDelNivel(int nivel, Sorteo &sorteo)
{
    if (nivel == 3) {
        const Sistema s = sistemaDe({7, 8, 9, 11, 13, 17}, 3, sorteo);
        return {s, sorteo.entre(2, 9) * 100};
    }
    MenorNumero n{
        {{}, sorteo.barajada(QList<qint64>{6, 8, 9, 10, 12, 14, 15, 18}).first(nivel + 1)}, 0};
    const qint64 resto = sorteo.entre(1, 5);
    for (const qint64 m : n.sistema.modulos)
        n.sistema.restos << (nivel == 1 ? resto : m - resto);
    n.cota = nivel == 1 ? resto : 0;
    return n;
}

Ejercicio minimo(int nivel, Sorteo &sorteo)
{
    const MenorNumero n = menorDelNivel(nivel, sorteo);
    const Sistema &s = n.sistema;
    const QString pregunta =
        nivel == 1
            ? Traduce(u"¿Cuál es el menor número mayor que %3 que da resto %2 al dividirlo entre "
                      "cada uno de los números %1?"_s)
            : Traduce(u"¿Cuál es el menor número mayor que %3 que al dividirlo entre %1 da los "
                      "restos %2, en ese orden?"_s);
    return {
        .enunciado = pregunta.arg(listaDe(s.modulos),
                                  nivel == 1 ? QString::number(s.restos[0]) : listaDe(s.restos),
                                  QString::number(n.cota)),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(n.valor()),
        .juzga = [n](const RespuestaLeida &r) { return juzgaMinimo(r, n); },
        .pistas =
            {nivel == 3
                 ? Traduce(u"Resuelva el sistema de congruencias y después busque el que pasa "
                           "de la cota."_s)
                 : Traduce(u"Piense en cuánto le falta, o le sobra, para ser múltiplo de todos."_s),
             Traduce(u"Los números con esos restos se repiten cada %1."_s).arg(s.periodo())},
        .solucion =
            [n] {
                return seguidos(pasosDeSistema(n.sistema),
                                {pasoCon(Traduce(u"El primero que pasa de %1."_s).arg(n.cota),
                                         {u"%1 > %2"_s.arg(n.valor()).arg(n.cota)})});
            }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeCongruencias()
{
    return QList<TipoDeEjercicio>{
               {u"congruencias.dosmodulos"_s, u"Dos congruencias"_s, dosModulos},
               {u"congruencias.tresmodulos"_s, u"Tres congruencias"_s, tresModulos},
               {u"congruencias.nocoprimos"_s, u"Módulos que no son primos entre sí"_s, noCoprimos},
               {u"congruencias.minimo"_s, u"El menor número con esos restos"_s, minimo}} +
           ejerciciosDeProblemas();
}
