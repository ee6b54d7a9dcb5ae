// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/minical/MiniCal.h"

#include "bignum/gateway/ModBignum.h"
#include "practice/bank/minical/FormulaDeColumna.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a cell shows, with the results of typical misreadings of what was written in it.
struct Celda
{
    QString enunciado;
    QString muestra; ///< as the sheet writes it
    QList<ErrorTipico> errores;
    QStringList pistas;
    QList<Paso> pasos;
};

/// Numerator and denominator with a blank between them, as an answer has them.
QString partesDe(const QString &fraccion)
{
    return fraccion.contains(u'/') ? QString(fraccion).replace(u'/', u' ') : fraccion + u" 1"_s;
}

Fallo juzgaCelda(const RespuestaLeida &respuesta, const Celda &celda)
{
    if (esError(respuesta.palabra))
        return Fallo::mal(Traduce(u"Esa expresión tiene valor."_s), u"error"_s);
    const QString dada = respuesta.numeros.join(u' ');
    const QString buena = partesDe(celda.muestra);
    if (dada == buena)
        return correcto();
    const QString reducida = Evalua(u"(%1)/(%2)"_s.arg(respuesta.numeros[0], respuesta.numeros[1]));
    if (reducida == celda.muestra)
        return Fallo::mal(
            Traduce(u"Vale lo mismo, pero la celda muestra la fracción irreducible."_s),
            u"sin-reducir"_s);
    for (const ErrorTipico &error : celda.errores) {
        if (partesDe(error.numeros) == dada || error.numeros == reducida)
            return Fallo::mal(error.palabra, error.nota);
    }
    return Fallo::mal(Traduce(u"No es eso lo que muestra."_s));
}

/// An expression in a cell of its own.
Celda celdaCon(const QString &expresion, const QStringList &pistas,
               const QList<ErrorTipico> &errores, const QString &frase, const QString &formula)
{
    const QString muestra = Evalua(QString(expresion));
    return {Traduce(u"¿Qué muestra una celda en la que se escribe «%1»?"_s).arg(expresion),
            muestra,
            errores,
            pistas,
            {{frase, {u"%1 = %2"_s.arg(formula, muestra)}}}};
}

QString valorDe(const QString &expresion)
{
    return Evalua(QString(expresion));
}

Celda precedencia(Sorteo &sorteo)
{
    const qint64 a = sorteo.entre(2, 9);
    const qint64 b = sorteo.entre(2, 6);
    const qint64 c = sorteo.entre(2, 5);
    const qint64 d = sorteo.entre(2, 3);
    const bool junta = sorteo.moneda();
    const QString sin = u"%1+%2*%3^%4"_s.arg(a).arg(b).arg(c).arg(d);
    const QString con = u"(%1+%2)*%3^%4"_s.arg(a).arg(b).arg(c).arg(d);
    return celdaCon(
        junta ? con : sin,
        {Traduce(u"Primero lo que está entre paréntesis, luego las potencias, los productos y al "
                 "final las sumas."_s),
         Traduce(u"La potencia vale %1."_s).arg(potencia(c, static_cast<int>(d)))},
        {{valorDe(junta ? sin : con),
          junta ? Traduce(u"Ha olvidado los paréntesis."_s)
                : Traduce(u"El producto va antes que la suma."_s),
          u"orden"_s},
         {valorDe(u"%1+(%2*%3)^%4"_s.arg(a).arg(b).arg(c).arg(d)),
          Traduce(u"La potencia va antes que el producto."_s), u"potencia-despues"_s},
         {valorDe(u"((%1+%2)*%3)^%4"_s.arg(a).arg(b).arg(c).arg(d)),
          Traduce(u"No se calcula de izquierda a derecha."_s), u"de-izquierda-a-derecha"_s}},
        Traduce(u"Las potencias, los productos y las sumas, por este orden."_s), junta ? con : sin);
}

Celda fracciones(Sorteo &sorteo)
{
    const qint64 b = sorteo.entre(2, 9);
    const qint64 d = sorteo.de(coprimosCon(1, b + 1, 12));
    const qint64 a = sorteo.de(coprimosCon(b, 1, b - 1));
    const qint64 c = sorteo.de(coprimosCon(d, 1, d - 1));
    const bool resta = sorteo.moneda();
    const QChar signo = resta ? u'-' : u'+';
    const QString expresion = u"%1/%2%3%4/%5"_s.arg(a).arg(b).arg(signo).arg(c).arg(d);
    const qint64 comun = std::lcm(b, d);
    return celdaCon(
        expresion,
        {Traduce(u"La celda muestra una fracción irreducible: ponga las dos con el mismo "
                 "denominador."_s),
         Traduce(u"El denominador común es %1."_s).arg(comun)},
        {{u"%1/%2"_s.arg(resta ? a - c : a + c).arg(resta ? d - b : b + d),
          Traduce(u"Las fracciones no se suman numerador con numerador y denominador con "
                  "denominador."_s),
          u"por-partes"_s},
         {valorDe(u"%1/%2%3%4/%5"_s.arg(a).arg(b).arg(resta ? u'+' : u'-').arg(c).arg(d)),
          Traduce(u"Ha confundido la suma con la resta."_s), u"signo"_s},
         {valorDe(u"%1/%2*%3/%4"_s.arg(a).arg(b).arg(c).arg(d)), Traduce(u"Las ha multiplicado."_s),
          u"producto"_s}},
        Traduce(
            u"Con el mismo denominador, y dividiendo al final entre el máximo común divisor."_s),
        u"%1/%2 %3 %4/%2"_s.arg(a * comun / b).arg(comun).arg(signo).arg(c * comun / d));
}

Celda restoNegativo(Sorteo &sorteo)
{
    const qint64 m = sorteo.entre(5, 19);
    const qint64 resto = sorteo.entre(1, m - 1);
    const qint64 a = m * sorteo.entre(2, 9) - resto; // resto is that of −a
    return celdaCon(
        u"(-%1) mod %2"_s.arg(a).arg(m),
        {Traduce(u"El resto está siempre entre 0 y el divisor menos 1."_s),
         Traduce(u"Sume %1 hasta que deje de ser negativo."_s).arg(m)},
        {{u"-%1"_s.arg(m - resto), Traduce(u"El resto no puede ser negativo."_s), u"negativo"_s},
         {QString::number(m - resto), Traduce(u"Ese es el resto del número sin el signo."_s),
          u"sin-signo"_s},
         {u"-%1"_s.arg(a / m), Traduce(u"Ese es el cociente."_s), u"cociente"_s}},
        Traduce(u"Se suma el divisor hasta que el número no sea negativo."_s),
        u"-%1 + %2*%3"_s.arg(a).arg((a + resto) / m).arg(m));
}

Celda ultimasCifras(Sorteo &sorteo)
{
    const qint64 a = sorteo.de(QList<qint64>{3, 7, 11, 13, 17, 19, 21, 23, 27, 29, 31, 43, 57});
    const qint64 m = sorteo.moneda() ? 10 : 100;
    qint64 ciclo = 1;
    while (potenciaModular(a, ciclo, m) != 1)
        ++ciclo;
    const qint64 e = sorteo.entre(100, 1999);
    return celdaCon(
        u"%1^%2 mod %3"_s.arg(a).arg(e).arg(m),
        {Traduce(u"Son las últimas cifras de la potencia: mire cómo se repiten."_s),
         Traduce(u"Las últimas cifras se repiten de %1 en %1."_s).arg(ciclo)},
        {{QString::number(a * e % m), Traduce(u"Ha multiplicado en lugar de elevar."_s),
          u"producto"_s},
         {QString::number(potenciaModular(a, e % m, m)),
          Traduce(u"El exponente no se reduce módulo lo mismo que la base."_s), u"exponente"_s},
         {QString::number(potenciaModular(a, e + 1, m)), Traduce(u"Ha contado un factor de más."_s),
          u"un-factor"_s}},
        Traduce(u"Las últimas cifras se repiten de %1 en %1: basta el resto del exponente."_s)
            .arg(ciclo),
        u"%1^%2 mod %3"_s.arg(a).arg(e % ciclo).arg(m));
}

Celda funciones(Sorteo &sorteo)
{
    const qint64 d = sorteo.entre(2, 12);
    const qint64 u = sorteo.entre(2, 9);
    const qint64 v = sorteo.de(coprimosCon(u, u + 1, 16));
    const bool mcm = sorteo.moneda();
    const QString par = u"(%1;%2)"_s.arg(d * u).arg(d * v);
    return celdaCon(
        (mcm ? u"mcm"_s : u"mcd"_s) + par,
        {Traduce(u"mcd es el máximo común divisor, y mcm, el mínimo común múltiplo."_s),
         Traduce(u"El producto de los dos números es %1, que es también mcd por mcm."_s)
             .arg(d * u * d * v)},
        {{valorDe((mcm ? u"mcd"_s : u"mcm"_s) + par), Traduce(u"Ha confundido mcd y mcm."_s),
          u"otra-funcion"_s},
         {QString::number(d * u * d * v), Traduce(u"Ese es el producto."_s), u"producto"_s},
         {QString::number(d * (v - u)), Traduce(u"Esa es la diferencia."_s), u"diferencia"_s}},
        mcm ? Traduce(u"El producto entre el máximo común divisor."_s)
            : Traduce(u"El mayor que divide a los dos."_s),
        mcm ? u"%1*%2/%3"_s.arg(d * u).arg(d * v).arg(d) : u"mcd(%1; %2)"_s.arg(d * u).arg(d * v));
}

/// A3 from A1 and A2, of which A2 stays as it was when A1 is changed.
Celda enCadena(Sorteo &sorteo)
{
    const qint64 a = sorteo.entre(2, 12);
    const qint64 nuevo = a + sorteo.entre(2, 9);
    const qint64 b = sorteo.entre(2, 6);
    const qint64 c = sorteo.entre(1, 9);
    const qint64 d = sorteo.entre(2, 5);
    const qint64 a2 = a * b + c;
    const auto fraccion = [d](qint64 n) { return valorDe(u"%1/%2"_s.arg(n).arg(d)); };
    return {
        Traduce(u"En A1 se escribe %1; en A2, A1*%2+%3. Después se cambia A1 por %4, y en A3 se "
                "escribe (A1+A2)/%5, sin recalcular A2. ¿Qué muestra A3?"_s)
            .arg(a)
            .arg(b)
            .arg(c)
            .arg(nuevo)
            .arg(d),
        fraccion(nuevo + a2),
        {{fraccion(nuevo + nuevo * b + c),
          Traduce(u"A2 no cambia sola: sigue como estaba hasta que se recalcula."_s),
          u"en-cadena"_s},
         {fraccion(a + a2), Traduce(u"A1 ya tiene el número nuevo."_s), u"sin-cambio"_s},
         {QString::number(nuevo + a2), Traduce(u"Falta dividir."_s), u"sin-dividir"_s}},
        {Traduce(u"No hay cálculo en cadena: ¿con qué valor de A1 se calculó A2?"_s),
         Traduce(u"Al escribir A3, A1 vale %1 y A2, %2."_s).arg(nuevo).arg(a2)},
        {{Traduce(u"A2 se calculó con el primer A1, y no ha cambiado."_s),
          {u"%1*%2 + %3 = %4"_s.arg(a).arg(b).arg(c).arg(a2)}},
         {Traduce(u"A3 usa el A1 de ahora y ese A2."_s),
          {u"(%1 + %2)/%3 = %4"_s.arg(nuevo).arg(a2).arg(d).arg(fraccion(nuevo + a2))}}}};
}

/// "A1" followed by a digit is read as its value times that digit.
Celda comoTexto(Sorteo &sorteo)
{
    const qint64 a = sorteo.entre(3, 15);
    const qint64 cifra = sorteo.entre(2, 9);
    const qint64 c = sorteo.entre(2, 20);
    const QString nombre = u"A1%1"_s.arg(cifra);
    return {
        Traduce(u"En A1 hay un %1, y en %2 no hay nada. ¿Qué muestra una celda en la que se "
                "escribe «%2+%3»?"_s)
            .arg(QString::number(a), nombre, QString::number(c)),
        QString::number(a * cifra + c),
        {{QString::number(c),
          Traduce(u"Antes de calcular se sustituye A1 por su valor, también "
                  "dentro de otro nombre."_s),
          u"celda-vacia"_s},
         {QString::number(a + c), Traduce(u"La cifra que sigue a A1 también cuenta."_s),
          u"sin-la-cifra"_s},
         {QString::number(10 * a + cifra + c),
          Traduce(u"El valor se pone entre paréntesis: no se pegan las cifras, se multiplican."_s),
          u"cifras-pegadas"_s},
         {QString::number(a * (cifra + c)), Traduce(u"El producto va antes que la suma."_s),
          u"orden"_s}},
        {Traduce(u"Los nombres se sustituyen como texto, antes de calcular."_s),
         Traduce(u"Queda (%1)%2+%3."_s).arg(a).arg(cifra).arg(c)},
        {{Traduce(u"A1 se sustituye por su valor entre paréntesis, y la cifra que queda detrás "
                  "multiplica."_s),
          {u"(%1)*%2 + %3 = %4"_s.arg(a).arg(cifra).arg(c).arg(a * cifra + c)}}}};
}

Celda celdaDeNivel(int nivel, Sorteo &sorteo)
{
    const qint64 cual = sorteo.entre(0, nivel == 2 ? 2 : 1);
    if (nivel == 1)
        return cual == 0 ? precedencia(sorteo) : fracciones(sorteo);
    if (nivel == 2)
        return cual == 0   ? restoNegativo(sorteo)
               : cual == 1 ? ultimasCifras(sorteo)
                           : funciones(sorteo);
    return cual == 0 ? enCadena(sorteo) : comoTexto(sorteo);
}

Ejercicio loQueMuestra(int nivel, Sorteo &sorteo)
{
    const Celda celda = celdaDeNivel(nivel, sorteo);
    return {.enunciado = celda.enunciado,
            .forma = {FormaDeRespuesta::Fraccion, {u"Error"_s}},
            .ejemplo = Traduce(u"Un número o una fracción: 22/7"_s),
            .esperada = celda.muestra,
            .juzga = [celda](const RespuestaLeida &r) { return juzgaCelda(r, celda); },
            .pistas = celda.pistas,
            .solucion = [celda] { return Pasos(celda.pasos); }};
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeMiniCal()
{
    return {{u"minical.celda"_s, u"Lo que muestra una celda"_s, loQueMuestra},
            {u"minical.formula"_s, u"La fórmula de una columna"_s, formulaDeColumna}};
}
