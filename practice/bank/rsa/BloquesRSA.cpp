// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/rsa/key/TextoEnBloques.h"
#include "practice/bank/rsa/ClaveDePractica.h"
#include "practice/bank/shared/Juicios.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The largest number that r characters give: 255 written r times.
qint64 topeDe(int r)
{
    return r == 0 ? 0 : 1000 * topeDe(r - 1) + 255;
}

QList<ErrorTipico> erroresDeBloques(qint64 n, qint64 r)
{
    const bool justos = n % r == 0;
    return {{QString::number(justos ? n / r + 1 : n / r),
             justos ? Traduce(u"Los caracteres llenan justos los bloques: no hay uno más."_s)
                    : Traduce(u"El último bloque también cuenta, aunque no se llene."_s),
             justos ? u"bloque-de-mas"_s : u"ultimo-bloque"_s},
            {QString::number(n * r), Traduce(u"Hay que repartir los caracteres, no repetirlos."_s),
             u"producto"_s},
            {QString::number(3 * n), Traduce(u"Esas son las cifras, tres por carácter."_s),
             u"cifras"_s}};
}

Ejercicio cuantosBloques(Sorteo &sorteo)
{
    const qint64 r = sorteo.entre(2, 9);
    const qint64 llenos = sorteo.entre(3, 20);
    const qint64 sobran = sorteo.entre(1, r);
    const qint64 n = llenos * r + sobran;
    return {
        .enunciado = Traduce(u"¿En cuántos bloques se cifra un texto de %1 caracteres, si la "
                             "clave tiene r = %2?"_s)
                         .arg(n)
                         .arg(r),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(llenos + 1),
        .juzga = juicioDe(
            QString::number(llenos + 1), erroresDeBloques(n, r),
            Traduce(u"Cuente cuántas veces se toman r caracteres hasta acabar el texto."_s)),
        .pistas = {Traduce(u"Cada bloque lleva r caracteres; el último se completa con "
                           "espacios."_s),
                   Traduce(u"Divida %1 entre %2, y redondee por exceso."_s).arg(n).arg(r)},
        .solucion = [=] {
            return Pasos(QList<Paso>{
                {Traduce(u"Se reparten los caracteres de r en r; si sobran, hay un bloque más."_s),
                 {u"%1 = %2*%3 + %4"_s.arg(n).arg(n / r).arg(r).arg(n % r),
                  u"ceil(%1/%2) = %3"_s.arg(n).arg(r).arg(llenos + 1)}}});
        }};
}

QStringList codigosDe(const QString &palabra, int r)
{
    QStringList codigos;
    for (const QChar letra : palabra.first(r))
        codigos << u"%1 = %2"_s.arg(letra).arg(letra.unicode());
    codigos.removeDuplicates();
    return codigos;
}

Ejercicio primerBloque(Sorteo &sorteo)
{
    static const QStringList palabras = {u"CRIPTOGRAFIA"_s, u"EUCLIDES"_s,  u"FIBONACCI"_s,
                                         u"CONGRUENCIA"_s,  u"RECURSION"_s, u"ALGORITMO"_s,
                                         u"PRIMOS"_s,       u"UNIDADES"_s,  u"DIVISIBILIDAD"_s,
                                         u"PERIODO"_s,      u"TEOREMA"_s,   u"MATEMATICA"_s};
    const QString palabra = sorteo.de(palabras);
    const int r = static_cast<int>(sorteo.entre(2, 4));
    PaquetesDeTexto paquetes(palabra, r);
    const qint64 cuantos = paquetes.cuantos();
    const QString primero = QString::number(paquetes.siguiente().toLongLong());
    QString pegados;
    for (const QChar letra : palabra.first(r))
        pegados += QString::number(letra.unicode());
    const QString n = QString::number(cuantos);
    return {
        .enunciado = Traduce(u"Con r = %1, ¿cuántos bloques forma el texto %2, y qué número es el "
                             "primero antes de cifrarlo? Los códigos son %3."_s)
                         .arg(QString::number(r), palabra, codigosDe(palabra, r).join(u", "_s)),
        .forma = {FormaDeRespuesta::Lista},
        .ejemplo = Traduce(u"Cuántos y el primero: 2, 65066"_s),
        .esperada = n + u", "_s + primero,
        .juzga = juicioDe(
            n + u' ' + primero,
            {{primero + u' ' + n, Traduce(u"Están en el otro orden."_s), u"orden"_s},
             {n + u' ' + pegados, Traduce(u"Cada código ocupa tres cifras: 67 se escribe 067."_s),
              u"tres-cifras"_s},
             {QString::number(palabra.size()) + u' ' + primero,
              Traduce(u"Esas son las letras; los bloques las llevan de r en r."_s), u"letras"_s},
             {QString::number(palabra.size() / r) + u' ' + primero,
              Traduce(u"El último bloque también cuenta, aunque no se llene."_s),
              u"ultimo-bloque"_s}},
            Traduce(u"Se piden dos números: cuántos bloques y el primero, con los códigos de sus "
                    "letras escritos seguidos con tres cifras."_s)),
        .pistas = {Traduce(u"Los caracteres se toman de r en r, y cada código se escribe con tres "
                           "cifras."_s),
                   Traduce(u"El primer bloque junta los códigos de %1; el texto tiene %2 letras."_s)
                       .arg(palabra.first(r))
                       .arg(palabra.size())},
        .solucion = [=] {
            QStringList sumandos;
            for (int i = 0; i < r; ++i)
                sumandos << u"%1*1000^%2"_s.arg(palabra[i].unicode()).arg(r - 1 - i);
            return Pasos(QList<Paso>{
                {Traduce(u"Los bloques, redondeando por exceso."_s),
                 {u"ceil(%1/%2) = %3"_s.arg(palabra.size()).arg(r).arg(cuantos)}},
                {Traduce(u"El primero: cada código, tres cifras más a la izquierda que el "
                         "siguiente."_s),
                 {u"%1 = %2"_s.arg(sumandos.join(u" + "_s), primero)}}});
        }};
}

/// The first prime beyond n.
qint64 primoDesde(qint64 n)
{
    return PrimoSiguiente(QString::number(n)).toLongLong();
}

int bitsDe(qint64 n)
{
    int bits = 0;
    for (; n > 0; n /= 2)
        ++bits;
    return bits;
}

Ejercicio bitsYBloque(Sorteo &sorteo)
{
    const int r = static_cast<int>(sorteo.entre(1, 2));
    const qint64 p = primoDesde(sorteo.entre(topeDe(r) + 1, topeDe(r + 1) / 2));
    const qint64 otro = primoDesde(p + sorteo.entre(1, p / 2));
    const int bits = bitsDe(p * otro);
    const auto par = [](int a, int b) { return u"%1 %2"_s.arg(a).arg(b); };
    return {
        .enunciado = Traduce(u"Los primos de una clave son %1 y %2. ¿Cuántos bits tiene q, y "
                             "cuál es el mayor r con el que cada primo pasa del mayor bloque?"_s)
                         .arg(p)
                         .arg(otro),
        .forma = {FormaDeRespuesta::Lista},
        .ejemplo = Traduce(u"Bits y r: 12, 1"_s),
        .esperada = u"%1, %2"_s.arg(bits).arg(r),
        .juzga = juicioDe(
            par(bits, r),
            {{par(r, bits), Traduce(u"Están en el otro orden."_s), u"orden"_s},
             {par(bits - 1, r),
              Traduce(u"Ese es el exponente de la mayor potencia de 2 que cabe: falta la cifra "
                      "de las unidades."_s),
              u"un-bit"_s},
             {par(bitsDe(p) + bitsDe(otro), r),
              Traduce(u"Los bits de un producto pueden ser uno menos que los de sus factores "
                      "juntos."_s),
              u"suma-de-bits"_s},
             {par(bits, r + 1),
              Traduce(u"Con ese r, el mayor bloque, 255 escrito r veces, pasa de un primo."_s),
              u"r-grande"_s}},
            Traduce(u"Se piden dos números: las cifras binarias de q, y cuántas veces seguidas se "
                    "puede escribir 255 sin llegar al menor de los primos."_s)),
        .pistas = {Traduce(u"El mayor bloque es 255 escrito r veces. Los bits son las cifras de q "
                           "en base 2."_s),
                   Traduce(u"q = %1: busque entre qué potencias de 2 está, y compare %2 con 255, "
                           "255255…"_s)
                       .arg(p * otro)
                       .arg(p)},
        .solucion = [=] {
            return Pasos(QList<Paso>{
                {Traduce(u"q tiene tantos bits como el exponente de la primera potencia de 2 que "
                         "pasa de él."_s),
                 {u"%1*%2 = %3"_s.arg(p).arg(otro).arg(p * otro),
                  u"2^%1 <= %2 < 2^%3"_s.arg(bits - 1).arg(p * otro).arg(bits)}},
                {Traduce(u"El menor de los primos está entre dos de los mayores bloques."_s),
                 {u"%1 < %2 < %3"_s.arg(topeDe(r)).arg(p).arg(topeDe(r + 1))}}});
        }};
}

} // namespace

Ejercicio bloquesDeRSA(int nivel, Sorteo &sorteo)
{
    return nivel == 1   ? cuantosBloques(sorteo)
           : nivel == 2 ? primerBloque(sorteo)
                        : bitsYBloque(sorteo);
}
