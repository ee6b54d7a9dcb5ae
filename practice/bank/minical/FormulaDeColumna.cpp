// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/minical/FormulaDeColumna.h"

#include "bignum/gateway/ModBignum.h"
#include "practice/bank/shared/Juicios.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Filas = 6;

/// What a formula gives where A1 has that value: the name is replaced as the sheet does it.
QString valorDe(QString formula, qint64 n)
{
    return Evalua(formula.replace(u"A1"_s, u"(%1)"_s.arg(n)));
}

QStringList columnaDe(const QString &formula, qint64 desde = 1)
{
    QStringList valores;
    for (qint64 n = desde; n < desde + Filas; ++n)
        valores << valorDe(formula, n);
    return valores;
}

struct Columna
{
    QString formula;
    QStringList pistas;
};

QString conSigno(qint64 n)
{
    return (n < 0 ? u"-"_s : u"+"_s) + QString::number(qAbs(n));
}

qint64 noNulo(qint64 hasta, Sorteo &sorteo)
{
    const qint64 n = sorteo.entre(1, hasta);
    return sorteo.moneda() ? n : -n;
}

Columna recta(Sorteo &sorteo)
{
    const qint64 a = sorteo.entre(2, 9);
    return {u"%1*A1%2"_s.arg(a).arg(conSigno(noNulo(9, sorteo))),
            {Traduce(u"¿Cuánto crece B de una fila a la siguiente?"_s),
             Traduce(u"Crece siempre %1: compare B con %1 por A."_s).arg(a)}};
}

Columna restoOCociente(Sorteo &sorteo)
{
    const qint64 k = sorteo.entre(3, 5);
    const qint64 c = sorteo.entre(2, 9);
    return {u"(A1+%1) mod %2"_s.arg(c).arg(k),
            {Traduce(u"Los valores vuelven a empezar: ¿cada cuántas filas?"_s),
             Traduce(u"Es un resto al dividir entre %1."_s).arg(k)}};
}

Columna cuadratica(Sorteo &sorteo)
{
    const qint64 b = noNulo(6, sorteo);
    return {u"A1^2%1*A1%2"_s.arg(conSigno(b), conSigno(noNulo(9, sorteo))),
            {Traduce(u"Reste cada valor del siguiente, y vuelva a restar."_s),
             Traduce(u"Las segundas diferencias son 2: reste a B el cuadrado de A."_s)}};
}

Columna cociente(Sorteo &sorteo)
{
    const qint64 c = sorteo.entre(0, 4);
    const qint64 d = c + sorteo.entre(1, 5);
    const QString arriba = c == 0 ? u"A1"_s : u"(A1+%1)"_s.arg(c);
    return {u"%1/(A1+%2)"_s.arg(arriba).arg(d),
            {Traduce(u"Algunas fracciones están simplificadas: escríbalas todas con denominadores "
                     "seguidos."_s),
             Traduce(u"El denominador es A1+%1."_s).arg(d)}};
}

Columna deLasSumas(Sorteo &sorteo)
{
    const qint64 k = sorteo.entre(1, 4);
    return {u"%1*A1*(A1+1)/2"_s.arg(2 * k - 1) + conSigno(noNulo(5, sorteo)),
            {Traduce(u"Reste cada valor del siguiente: las diferencias crecen por igual."_s),
             Traduce(u"Es la suma de los primeros números, A1*(A1+1)/2, por %1, y una constante."_s)
                 .arg(2 * k - 1)}};
}

Columna potencias(Sorteo &sorteo)
{
    const qint64 b = sorteo.entre(2, 4);
    const qint64 a = sorteo.entre(1, 3);
    const QString c = conSigno(noNulo(9, sorteo));
    return {(a == 1 ? QString() : u"%1*"_s.arg(a)) + u"%1^A1"_s.arg(b) + c,
            {Traduce(u"Reste cada valor del siguiente: ¿por cuánto se multiplican las "
                     "diferencias?"_s),
             Traduce(u"Es una potencia de %1, por un número, y una constante."_s).arg(b)}};
}

Columna columnaDeNivel(int nivel, Sorteo &sorteo)
{
    const bool primera = sorteo.moneda();
    if (nivel == 1)
        return primera ? recta(sorteo) : restoOCociente(sorteo);
    if (nivel == 2)
        return primera ? cuadratica(sorteo) : cociente(sorteo);
    return primera ? deLasSumas(sorteo) : potencias(sorteo);
}

Fallo juzgaFormula(const RespuestaLeida &respuesta, const Columna &columna)
{
    const QString formula = respuesta.numeros.constFirst();
    const QStringList valores = columnaDe(columna.formula);
    const QStringList dados = columnaDe(formula);
    if (!formula.contains(u"A1"_s))
        return Fallo::mal(Traduce(u"La fórmula tiene que usar A1."_s), u"sin-la-celda"_s);
    if (dados == valores)
        return correcto();
    if (std::any_of(dados.begin(), dados.end(), esError))
        return Fallo::mal(Traduce(u"Con algún valor de A1 esa fórmula da Error."_s), u"da-error"_s);
    if (dados == columnaDe(columna.formula, 2) || dados == columnaDe(columna.formula, 0))
        return Fallo::mal(Traduce(u"Da esos valores, pero una fila más arriba o más abajo."_s),
                          u"corrida"_s);
    if (dados[0] == valores[0])
        return Fallo::mal(Traduce(u"Da el primero, pero no todos los demás."_s),
                          u"solo-el-primero"_s);
    return Fallo::mal(Traduce(u"No da esos valores."_s));
}

Pasos pasosDeColumna(const Columna &columna)
{
    const QStringList valores = columnaDe(columna.formula);
    TablaDePaso tabla{{u"A"_s, u"B"_s}, {}};
    for (int i = 0; i < Filas; ++i)
        tabla.filas << QStringList{QString::number(i + 1), valores[i]};
    Paso paso{Traduce(u"La fórmula %1 da la columna B."_s).arg(columna.formula)};
    paso.tabla = tabla;
    Paso prueba{Traduce(u"Con A1 = %1 se calcula así:"_s).arg(Filas)};
    prueba.formulas << Formula(u"%1 = %2"_s.arg(
        QString(columna.formula).replace(u"A1"_s, QString::number(Filas)), valores.back()));
    return Pasos(QList<Paso>{paso, prueba});
}

} // namespace

Ejercicio formulaDeColumna(int nivel, Sorteo &sorteo)
{
    const Columna columna = columnaDeNivel(nivel, sorteo);
    return {.enunciado =
                Traduce(u"La columna A tiene los números 1, 2, 3… y la columna B, %1. ¿Qué "
                        "fórmula, con A1, se escribe en B1?"_s)
                    .arg(columnaDe(columna.formula).join(u"; "_s)),
            .forma = {FormaDeRespuesta::FormulaDeCelda},
            .ejemplo = Traduce(u"Una fórmula: 3*A1+1"_s),
            .esperada = columna.formula,
            .juzga = [columna](const RespuestaLeida &r) { return juzgaFormula(r, columna); },
            .pistas = columna.pistas,
            .solucion = [columna] { return pasosDeColumna(columna); }};
}
