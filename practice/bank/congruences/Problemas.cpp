// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/congruences/Problemas.h"

#include "practice/bank/congruences/Sistema.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "practice/bank/shared/PasosDelBanco.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/PotenciaEscrita.h"

#include <algorithm>
#include <functional>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// a^k modulo the product of different primes.
struct PotenciaPorPartes
{
    qint64 a, k;
    QList<qint64> primos;

    qint64 modulo(qint64 m) const { return potenciaMod(a, k, static_cast<std::int32_t>(m)); }
    qint64 m() const
    {
        return std::accumulate(primos.begin(), primos.end(), qint64(1), std::multiplies<>());
    }
};

Fallo juzgaPotencia(const RespuestaLeida &r, const PotenciaPorPartes &p)
{
    const qint64 dado = restoDe(r.numeros[0], p.m());
    if (dado == p.modulo(p.m()))
        return numeroCorto(r) == dado ? correcto() : sinReducir(p.m());
    if (dado == p.a % p.m() * (p.k % p.m()) % p.m())
        return Fallo::mal(Traduce(u"Eso es el producto, no la potencia."_s), u"producto"_s);
    for (const qint64 q : p.primos) {
        if (dado % q == p.modulo(q))
            return Fallo::mal(
                Traduce(u"Módulo %1 es eso, pero módulo %2 no."_s)
                    .arg(q)
                    .arg(*std::find_if(p.primos.begin(), p.primos.end(),
                                       [&](qint64 otro) { return dado % otro != p.modulo(otro); })),
                u"una-parte"_s);
    }
    return Fallo::mal(Traduce(u"No lo es módulo ninguno de los factores de %1."_s).arg(p.m()),
                      u"otro"_s);
}

Pasos pasosDePotencia(const PotenciaPorPartes &p)
{
    QList<Paso> pasos;
    Sistema s;
    for (const qint64 q : p.primos) {
        s.modulos << q;
        s.restos << p.modulo(q);
        const QString frase =
            p.a % q == 0 ? Traduce(u"La base es múltiplo de %1: la potencia también."_s)
                         : Traduce(u"Módulo %1 el exponente se reduce módulo el primo menos 1."_s);
        const qint64 e = p.a % q == 0 ? p.k : p.k % (q - 1);
        pasos << pasoCon(frase.arg(q), {u"%1^{%2} == %3^{%4} == %5 (mod %6)"_s.arg(p.a)
                                            .arg(p.k)
                                            .arg(p.a % q)
                                            .arg(e)
                                            .arg(p.modulo(q))
                                            .arg(q)});
    }
    return Pasos::seguidos({Pasos(pasos), pasosDeSistema(s)});
}

/// A base that is neither 0, 1 nor −1 modulo the product.
PotenciaPorPartes potenciaDelNivel(int nivel, Sorteo &sorteo)
{
    const QList<qint64> primos =
        nivel == 1 ? QList<qint64>{3, 5, 7, 11} : QList<qint64>{5, 7, 11, 13, 17, 19};
    PotenciaPorPartes p{0,
                        sorteo.entre(10, nivel == 1   ? 99
                                         : nivel == 2 ? 999
                                                      : 99'999),
                        sorteo.barajada(primos).first(nivel == 3 ? 3 : 2)};
    std::sort(p.primos.begin(), p.primos.end());
    p.a = sorteo.entre(2, std::min<qint64>(p.m() - 2, 50));
    return p;
}

Ejercicio potenciaPorPartes(int nivel, Sorteo &sorteo)
{
    const PotenciaPorPartes p = potenciaDelNivel(nivel, sorteo);
    const qint64 q = p.primos.constFirst();
    return {
        .enunciado = Traduce(u"Calcule %1 módulo %2, por partes: %2 = %3."_s)
                         .arg(potenciaEscrita(p.a, p.k), QString::number(p.m()),
                              listaDe(p.primos).replace(u", "_s, u" · "_s)),
        .forma = {FormaDeRespuesta::Entero, {}, {u"^ mod"_s}},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(p.modulo(p.m())),
        .juzga = [p](const RespuestaLeida &r) { return juzgaPotencia(r, p); },
        .pistas =
            {Traduce(
                 u"Calcule la potencia módulo cada primo, con el teorema de Fermat, y junte los "
                 "restos."_s),
             Traduce(u"Módulo %1 da %2."_s).arg(q).arg(p.modulo(q))},
        .solucion = [p] { return pasosDePotencia(p); }};
}

/// A word problem: how it begins, what is said of each modulus and its remainder, what is asked
/// below a bound.
struct Historia
{
    QString principio, dato, pregunta;
};

Historia historia(qint64 cual)
{
    switch (cual) {
    case 0:
        return {Traduce(u"Una pastora cuenta sus ovejas."_s),
                Traduce(u"si las agrupa de %1 en %1 le sobran %2"_s),
                Traduce(u"Son menos de %1. ¿Cuántas ovejas tiene?"_s)};
    case 1:
        return {Traduce(u"Una banda desfila en filas iguales."_s),
                Traduce(u"en filas de %1 la última fila es de solo %2"_s),
                Traduce(u"Son menos de %1. ¿Cuántos músicos hay?"_s)};
    case 2:
        return {Traduce(u"Unos piratas reparten un cofre de monedas a partes iguales."_s),
                Traduce(u"si son %1 piratas quedan %2 monedas sin repartir"_s),
                Traduce(u"Son menos de %1. ¿Cuántas monedas hay?"_s)};
    case 3:
        return {Traduce(u"En una granja ponen los huevos del día en cajas."_s),
                Traduce(u"en cajas de %1 quedan %2 huevos fuera"_s),
                Traduce(u"Son menos de %1. ¿Cuántos huevos hay?"_s)};
    case 4:
        return {Traduce(u"Varios faros dan un destello de vez en cuando."_s),
                Traduce(u"uno lo da cada %1 segundos, y faltan %2 para el siguiente"_s),
                Traduce(u"Coinciden antes de %1 segundos. ¿Dentro de cuántos?"_s)};
    case 5:
        return {Traduce(u"Un álbum de sellos se puede ordenar de varias maneras."_s),
                Traduce(u"con %1 sellos en cada página la última tiene %2"_s),
                Traduce(u"Son menos de %1. ¿Cuántos sellos hay?"_s)};
    default:
        return {Traduce(u"Una cinta da vueltas a varias ruedas dentadas con una marca arriba."_s),
                Traduce(u"la marca de la rueda de %1 dientes está a %2 dientes de volver arriba"_s),
                Traduce(u"Las marcas coinciden arriba antes de %1 dientes. ¿Cuántos pasan?"_s)};
    }
}

Fallo juzgaProblema(const RespuestaLeida &r, const Sistema &s)
{
    const auto dado = numeroCorto(r);
    if (dado == *s.solucion())
        return correcto();
    const qsizetype falla = s.primeraSinCumplir(r.numeros[0]);
    if (falla < 0)
        return Fallo::mal(
            Traduce(u"Cumple todas las condiciones menos la última: ha de ser positivo y menor "
                    "que %1."_s)
                .arg(s.periodo()),
            u"fuera"_s);
    return Fallo::mal(Traduce(u"Con %1 no sale %2, sino %3."_s)
                          .arg(s.modulos[falla])
                          .arg(s.restos[falla])
                          .arg(restoDe(r.numeros[0], s.modulos[falla])),
                      s.cuantasCumple(r.numeros[0]) > 0 ? u"no-todas"_s : u"ninguna"_s);
}

/// Remainders from 2 on: the stories speak of several sheep.
Sistema sistemaDelProblema(int nivel, Sorteo &sorteo)
{
    const QList<qint64> modulos = nivel == 1   ? QList<qint64>{4, 5, 7, 9}
                                  : nivel == 2 ? QList<qint64>{4, 5, 7, 9, 11}
                                               : QList<qint64>{8, 9, 11, 13, 17, 25};
    return sistemaDe(modulos, nivel == 1 ? 2 : 3, sorteo, 2);
}

Ejercicio problema(int nivel, Sorteo &sorteo)
{
    const Historia h = historia(sorteo.entre(0, 6));
    const Sistema s = sistemaDelProblema(nivel, sorteo);
    QStringList datos;
    for (qsizetype i = 0; i < s.modulos.size(); ++i)
        datos << h.dato.arg(s.modulos[i]).arg(s.restos[i]);
    QString frase = datos.join(u"; "_s);
    frase[0] = frase[0].toUpper();
    return {.enunciado = h.principio + u' ' + frase + u". "_s + h.pregunta.arg(s.periodo()),
            .forma = {FormaDeRespuesta::Entero},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = QString::number(*s.solucion()),
            .juzga = [s](const RespuestaLeida &r) { return juzgaProblema(r, s); },
            .pistas = {Traduce(u"Cada dato es una congruencia: escriba el sistema."_s), s.texto()},
            .solucion = [s] { return pasosDeSistema(s); }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeProblemas()
{
    return {{u"congruencias.potencia"_s, u"Potencias por partes"_s, potenciaPorPartes},
            {u"congruencias.problema"_s, u"Problemas de restos"_s, problema}};
}
