// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/rsa/RSA.h"

#include "practice/bank/rsa/ClaveDePractica.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/PasosDePotencia.h"

using namespace Qt::Literals::StringLiterals;

namespace {

ClaveDePractica claveDeNivel(int nivel, Sorteo &sorteo)
{
    static const QList<QList<qint64>> primos = {primosEntre(7, 19), primosEntre(11, 31),
                                                primosEntre(17, 41)};
    return claveCon(dosDe(primos[nivel - 1], sorteo), 12 * nivel, sorteo);
}

/// A block that changes when it is encrypted, and that no prime of the key divides.
qint64 bloqueDe(const ClaveDePractica &clave, Sorteo &sorteo)
{
    QList<qint64> bloques;
    for (const qint64 m : coprimosCon(clave.q(), 2, clave.q() - 2)) {
        if (potenciaModular(m, clave.s, clave.q()) != m)
            bloques << m;
    }
    return sorteo.de(bloques);
}

Pasos pasosDeElevar(qint64 base, qint64 exponente, qint64 modulo)
{
    return pasosDePotencia(QString::number(base), QString::number(exponente),
                           QString::number(modulo));
}

Fallo juzgaT(const RespuestaLeida &respuesta, const ClaveDePractica &k)
{
    const qint64 dado = numeroDe(respuesta);
    if (dado == k.t)
        return correcto();
    if (dado == k.fi() - k.t)
        return Fallo::mal(Traduce(u"Ha perdido un signo: ese número por s deja resto −1."_s),
                          u"signo"_s);
    if (dado == k.fi() - k.s)
        return Fallo::mal(Traduce(u"Ese es el inverso aditivo de s: con él, s suma φ(q)."_s),
                          u"inverso-aditivo"_s);
    if (k.inverso(respuesta.numeros[0], k.fi()))
        return Fallo::mal(Traduce(u"Es congruente con t, pero se pide entre 1 y φ(q)."_s),
                          u"sin-reducir"_s);
    if (k.inverso(respuesta.numeros[0], k.lambda()))
        return Fallo::mal(
            Traduce(u"También descifra, porque es inverso módulo el mcm de los primos "
                    "menos 1, pero se pide módulo φ(q)."_s),
            u"modulo-lambda"_s);
    if (k.inverso(respuesta.numeros[0], k.q()))
        return Fallo::mal(Traduce(u"Ese es el inverso de s módulo q: hace falta módulo φ(q)."_s),
                          u"modulo-q"_s);
    return Fallo::mal(Traduce(u"Ese número por s no deja resto 1 al dividirlo entre φ(q)."_s));
}

Ejercicio exponentePrivado(int nivel, Sorteo &sorteo)
{
    static const QList<QList<qint64>> primos = {primosEntre(7, 23), primosEntre(20, 60),
                                                primosEntre(60, 200)};
    const auto k = claveCon(dosDe(primos[nivel - 1], sorteo), 30 * nivel, sorteo);
    return {
        .enunciado = Traduce(u"Con los primos q(1) = %1 y q(2) = %2 y el exponente público "
                             "s = %3, ¿cuál es el exponente privado t, el inverso de s módulo "
                             "φ(q) que está entre 1 y φ(q)?"_s)
                         .arg(k.p)
                         .arg(k.r)
                         .arg(k.s),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(k.t),
        .juzga = [k](const RespuestaLeida &r) { return juzgaT(r, k); },
        .pistas = {Traduce(u"Primero hace falta φ(q) = (q(1) − 1) · (q(2) − 1)."_s),
                   Traduce(u"φ(q) = %1: divida %1 entre %2 como hace el algoritmo de Euclides, y "
                           "despeje los restos."_s)
                       .arg(k.fi())
                       .arg(k.s)},
        .solucion = [k] { return pasosDeT(k); }};
}

/// The mistakes in raising a block to an exponent, where the other one undoes it.
QList<ErrorTipico> erroresAlElevar(qint64 base, qint64 exponente, qint64 otro,
                                   const ClaveDePractica &k)
{
    return {{QString::number(base * exponente % k.q()),
             Traduce(u"Ha multiplicado por el exponente en lugar de elevar a él."_s),
             u"producto"_s},
            {QString::number(potenciaModular(base, otro, k.q())),
             Traduce(u"Ha elevado al exponente de la otra clave."_s), u"otra-clave"_s},
            {QString::number(potenciaModular(base, exponente, k.fi())),
             Traduce(u"Los bloques se reducen módulo q; φ(q) es el módulo de los exponentes."_s),
             u"modulo-fi"_s},
            {QString::number(base), Traduce(u"Ese es el bloque de partida."_s), u"sin-elevar"_s}};
}

Ejercicio cifra(int nivel, Sorteo &sorteo)
{
    const auto k = claveDeNivel(nivel, sorteo);
    const qint64 m = bloqueDe(k, sorteo);
    const qint64 c = potenciaModular(m, k.s, k.q());
    return {
        .enunciado = Traduce(u"Con la clave pública q = %1, s = %2, ¿qué número sale al cifrar "
                             "el bloque m = %3?"_s)
                         .arg(k.q())
                         .arg(k.s)
                         .arg(m),
        .forma = {FormaDeRespuesta::Entero, {}, {u"^ mod"_s}},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(c),
        .juzga = juicioDeResto(c, k.q(), erroresAlElevar(m, k.s, k.t, k),
                               Traduce(u"No es el resto de esa potencia al dividirla entre q."_s)),
        .pistas = {Traduce(u"Cifrar es elevar a s y quedarse con el resto módulo q: escriba s "
                           "en binario."_s),
                   Traduce(u"%1 es %2 en binario: con cada cifra se eleva al cuadrado, y con un "
                           "1 se multiplica además por %3."_s)
                       .arg(QString::number(k.s), QString::number(k.s, 2), QString::number(m))},
        .solucion = [k, m] { return pasosDeElevar(m, k.s, k.q()); }};
}

QString preguntaDeDescifrar(int nivel, const ClaveDePractica &k, qint64 c)
{
    if (nivel == 3)
        return Traduce(u"Con los primos q(1) = %1 y q(2) = %2 y el exponente público s = %3 se ha "
                       "cifrado un bloque, y ha salido %4. ¿Qué bloque era?"_s)
            .arg(k.p)
            .arg(k.r)
            .arg(k.s)
            .arg(c);
    return Traduce(u"Con la clave q = %1 · %2 = %3, s = %4, t = %5 se ha cifrado un bloque, y ha "
                   "salido %6. ¿Qué bloque era?"_s)
        .arg(k.p)
        .arg(k.r)
        .arg(k.q())
        .arg(k.s)
        .arg(k.t)
        .arg(c);
}

Ejercicio descifra(int nivel, Sorteo &sorteo)
{
    const auto k = claveDeNivel(nivel, sorteo);
    const qint64 m = bloqueDe(k, sorteo);
    const qint64 c = potenciaModular(m, k.s, k.q());
    return {
        .enunciado = preguntaDeDescifrar(nivel, k, c),
        .forma = {FormaDeRespuesta::Entero, {}, {u"^ mod"_s}},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(m),
        .juzga = juicioDeResto(m, k.q(), erroresAlElevar(c, k.t, k.s, k),
                               Traduce(u"Al cifrar ese número no sale el que se ve."_s)),
        .pistas = {Traduce(u"Descifrar es elevar a t; se puede hacer módulo cada primo, y juntar "
                           "los restos."_s),
                   Traduce(u"Los exponentes se reducen módulo los primos menos 1: %1 módulo %2 y "
                           "%3 módulo %4."_s)
                       .arg(k.t % (k.p - 1))
                       .arg(k.p)
                       .arg(k.t % (k.r - 1))
                       .arg(k.r)},
        .solucion = [k, c, nivel] {
            const Pasos elevar = pasosDeElevar(c, k.t, k.q());
            return nivel == 3 ? Pasos::seguidos({pasosDeT(k), elevar}) : elevar;
        }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeRSA()
{
    return {{u"rsa.t"_s, u"El exponente privado"_s, exponentePrivado},
            {u"rsa.cifra"_s, u"Cifrar un bloque"_s, cifra},
            {u"rsa.descifra"_s, u"Descifrar un bloque"_s, descifra},
            {u"rsa.primosdefi"_s, u"Los primos, de q y φ(q)"_s, primosDeFi},
            {u"rsa.rompe"_s, u"Romper una clave pequeña"_s, rompeRSA},
            {u"rsa.bloques"_s, u"Bloques, bits y r"_s, bloquesDeRSA}};
}
