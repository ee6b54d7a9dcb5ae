// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/rsa/ClaveDePractica.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Pasos pasosDePrimosDeFi(qint64 p, qint64 r)
{
    const qint64 q = p * r;
    const qint64 suma = p + r;
    return Pasos(QList<Paso>{
        {Traduce(u"De φ(q) = q − (q(1) + q(2)) + 1 sale la suma de los primos."_s),
         {u"%1 + 1 - %2 = %3"_s.arg(q).arg(q + 1 - suma).arg(suma)}},
        {Traduce(u"El cuadrado de la diferencia es el de la suma menos 4 · q."_s),
         {u"%1^2 - 4*%2 = %3 = %4^2"_s.arg(suma).arg(q).arg((r - p) * (r - p)).arg(r - p)}},
        {Traduce(u"La mitad de la suma y la diferencia, sumadas y restadas, son los primos."_s),
         {u"(%1 + %2)/2 = %3"_s.arg(suma).arg(r - p).arg(r),
          u"(%1 - %2)/2 = %3"_s.arg(suma).arg(r - p).arg(p)}}});
}

Fallo juzgaPrimos(const RespuestaLeida &respuesta, qint64 p, qint64 r)
{
    if (respuesta.numeros.size() != 2)
        return Fallo::mal(Traduce(u"Se piden los dos primos."_s), u"cuantos"_s);
    const qint64 a = numeroDe(respuesta, 0);
    const qint64 b = numeroDe(respuesta, 1);
    if (qMin(a, b) == p && qMax(a, b) == r)
        return correcto();
    if (qMin(a, b) == p - 1 && qMax(a, b) == r - 1)
        return Fallo::mal(Traduce(u"Esos son los factores de φ(q): les falta 1."_s), u"menos-1"_s);
    if (qMin(a, b) == r - p && qMax(a, b) == r + p)
        return Fallo::mal(Traduce(u"Esas son la diferencia y la suma de los primos."_s),
                          u"suma-y-diferencia"_s);
    if (qAbs(a) < 1'000'000 && qAbs(b) < 1'000'000 && a + b == p + r)
        return Fallo::mal(Traduce(u"Suman lo que deben, pero su producto no es q."_s),
                          u"otro-producto"_s);
    return Fallo::mal(Traduce(u"El producto de esos dos números tiene que ser q, y el de esos "
                              "números menos 1, φ(q)."_s));
}

Fallo juzgaRotura(const RespuestaLeida &respuesta, const ClaveDePractica &k)
{
    if (respuesta.numeros.size() != 3)
        return Fallo::mal(Traduce(u"Se piden tres números: los dos primos y t."_s), u"cuantos"_s);
    const qint64 a = numeroDe(respuesta, 0);
    const qint64 b = numeroDe(respuesta, 1);
    const qint64 t = numeroDe(respuesta, 2);
    if (qMin(a, b) != k.p || qMax(a, b) != k.r)
        return Fallo::mal(
            Traduce(u"El producto de los dos primeros tiene que ser q, y ninguno, 1."_s),
            u"primos"_s);
    // Whatever undoes s is a private exponent.
    const QString &escrito = respuesta.numeros[2];
    if (k.inverso(escrito, k.lambda()))
        return !escrito.startsWith(u'-')
                   ? correcto()
                   : Fallo::mal(Traduce(u"Falta sumarle φ(q): un exponente privado es positivo."_s),
                                u"no-positivo"_s);
    if (t == k.fi() - k.t)
        return Fallo::mal(Traduce(u"Ha perdido un signo: ese número por s deja resto −1."_s),
                          u"signo"_s);
    if (k.inverso(escrito, k.q()))
        return Fallo::mal(Traduce(u"Ese es el inverso de s módulo q: hace falta módulo φ(q)."_s),
                          u"modulo-q"_s);
    return Fallo::mal(Traduce(u"Los primos son esos, pero t no deshace lo que hace s."_s), u"t"_s);
}

/// Fermat's way to primes that are close to each other.
Pasos pasosDeRotura(const ClaveDePractica &k)
{
    const qint64 media = (k.p + k.r) / 2;
    const qint64 mitad = (k.r - k.p) / 2;
    const Paso factores{
        Traduce(
            u"Se busca un cuadrado que pase de q en otro cuadrado: entonces q es la suma por la "
            "diferencia."_s),
        {u"%1^2 - %2 = %3 = %4^2"_s.arg(media).arg(k.q()).arg(mitad * mitad).arg(mitad),
         u"%1 = (%2 - %3)*(%2 + %3) = %4*%5"_s.arg(k.q()).arg(media).arg(mitad).arg(k.p).arg(k.r)}};
    return Pasos::seguidos({Pasos(QList<Paso>{factores}), pasosDeT(k)});
}

/// Two primes that follow each other closely: so many places apart at most.
std::pair<qint64, qint64> vecinosDe(const QList<qint64> &primos, qint64 lejos, Sorteo &sorteo)
{
    const qsizetype i = sorteo.entre(0, primos.size() - 1 - lejos);
    return {primos[i], primos[i + sorteo.entre(1, lejos)]};
}

} // namespace

Ejercicio primosDeFi(int nivel, Sorteo &sorteo)
{
    static const QList<QList<qint64>> primos = {primosEntre(11, 60), primosEntre(30, 150),
                                                primosEntre(100, 900)};
    const auto dos = dosDe(primos[nivel - 1], sorteo);
    const qint64 p = dos.first;
    const qint64 r = dos.second;
    return {
        .enunciado = Traduce(u"De una clave se sabe que q = %1 y φ(q) = %2. ¿Cuáles son los dos "
                             "primos?"_s)
                         .arg(p * r)
                         .arg((p - 1) * (r - 1)),
        .forma = {FormaDeRespuesta::Lista},
        .ejemplo = Traduce(u"Dos números: 3, 5"_s),
        .esperada = u"%1, %2"_s.arg(p).arg(r),
        .juzga = [p, r](const RespuestaLeida &resp) { return juzgaPrimos(resp, p, r); },
        .pistas =
            {Traduce(u"¿Cuánto vale la suma de los dos primos?"_s),
             Traduce(
                 u"Los primos suman %1, y el cuadrado de su diferencia es el de %1 menos 4 · q."_s)
                 .arg(p + r)},
        .solucion = [p, r] { return pasosDePrimosDeFi(p, r); }};
}

Ejercicio rompeRSA(int nivel, Sorteo &sorteo)
{
    static const QList<QList<qint64>> primos = {primosEntre(17, 100), primosEntre(20, 130),
                                                primosEntre(80, 250)};
    const auto k = claveCon(vecinosDe(primos[nivel - 1], 2 * nivel, sorteo), 20 * nivel, sorteo);
    const QString pares = u"%1 · %2"_s.arg(k.p).arg(k.r);
    return {
        .enunciado = Traduce(u"Rompa la clave pública q = %1, s = %2. Escriba los dos primos y "
                             "detrás el exponente privado t."_s)
                         .arg(k.q())
                         .arg(k.s),
        .forma = {FormaDeRespuesta::Lista},
        .ejemplo = Traduce(u"Tres números: 3, 5, 3"_s),
        .esperada = u"%1, %2, %3"_s.arg(k.p).arg(k.r).arg(k.t),
        .juzga = [k](const RespuestaLeida &r) { return juzgaRotura(r, k); },
        .pistas = {Traduce(u"Los primos están cerca: busque un cuadrado por encima de q."_s),
                   Traduce(u"q = %1. Queda invertir %2 módulo el producto de los primos menos 1."_s)
                       .arg(pares)
                       .arg(k.s)},
        .solucion = [k] { return pasosDeRotura(k); }};
}
