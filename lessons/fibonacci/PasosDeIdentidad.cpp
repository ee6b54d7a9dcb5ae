// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/PasosDeIdentidad.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/fibonacci/Embaldosados.h"
#include "lessons/fibonacci/NumeroDeFibonacci.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString fib(int n)
{
    return numeroDeFibonacci(n);
}

QString evaluada(QString expresion)
{
    return Evalua(expresion);
}

QString todasLasTiras(int largo)
{
    return Traduce(u"Las maneras de cubrir una tira de longitud %1 con cuadrados y dominós"_s)
        .arg(largo);
}

Paso pasoDeTiras(int largo)
{
    Paso paso{
        Traduce(u"Maneras de cubrir con cuadrados y dominós una tira de longitud %1: F(%2) = %3."_s)
            .arg(largo)
            .arg(largo + 1)
            .arg(fib(largo + 1)),
        {u"T(%1) = F(%2) = %3"_s.arg(largo).arg(largo + 1).arg(fib(largo + 1))},
        Traduce(u"La tira acaba en un cuadrado o en un dominó: T(k) = T(k − 1) + T(k − 2)"_s)};
    paso.lamina = laminaDeTiras(largo, todasLasTiras(largo), [](const auto &) { return true; });
    return paso;
}

/// Those strips of m + n − 1 cells with a joint behind cell m − 1, or those with a domino across
/// it.
Paso pasoDeJunta(int m, int n, bool conJunta)
{
    const int largo = m + n - 1;
    const int a = conJunta ? m : m - 1;
    const int b = conJunta ? n + 1 : n;
    const QString producto = evaluada(fib(a) + u'*' + fib(b));
    Paso paso{
        (conJunta
             ? Traduce(u"Con una junta tras la casilla %1, las dos partes se cubren cada una por "
                       "su lado."_s)
             : Traduce(u"Sin junta tras la casilla %1 hay un dominó encima, y a sus lados quedan "
                       "dos partes."_s))
            .arg(m - 1),
        {u"F(%1)*F(%2) = %3*%4 = %5"_s.arg(a).arg(b).arg(fib(a), fib(b), producto)}};
    if (!conJunta && m == 1)
        paso.frase = Traduce(u"Antes de la primera casilla siempre hay junta: no hay más tiras."_s);
    paso.lamina = laminaDeTiras(largo, todasLasTiras(largo), [=](const auto &tira) {
        return hayJunta(tira, m - 1) == conJunta;
    });
    return paso;
}

Pasos pasosDeSumaDeIndices(int m, int n)
{
    return Pasos(4, [m, n](qsizetype i) -> Paso {
        if (i == 0)
            return pasoDeTiras(m + n - 1);
        if (i < 3)
            return pasoDeJunta(m, n, i == 1);
        const QString una = evaluada(fib(m) + u'*' + fib(n + 1));
        const QString otra = evaluada(fib(m - 1) + u'*' + fib(n));
        return {Traduce(u"Cada tira está en una de las dos clases: juntas son todas."_s),
                {u"F(%1) = F(%2)*F(%3) + F(%4)*F(%5) = %6 + %7 = %8"_s.arg(m + n)
                     .arg(m)
                     .arg(n + 1)
                     .arg(m - 1)
                     .arg(n)
                     .arg(una, otra, fib(m + n))}};
    });
}

/// Strips of n + 1 cells whose last domino covers cells k and k + 1.
Paso pasoDeUltimoDomino(int n, int k)
{
    Paso paso{
        Traduce(
            u"Si el último dominó está en las casillas %1 y %2, las de antes se cubren de F(%1) "
            "maneras y detrás solo hay cuadrados."_s)
            .arg(k)
            .arg(k + 1),
        {u"F(%1) = %2"_s.arg(k).arg(fib(k))}};
    if (k > 1)
        paso.formulas << Formula(u"S_{%1} = S_{%2} + F(%1) = %3 + %4 = %5"_s.arg(k).arg(k - 1).arg(
            evaluada(fib(k + 1) + u"-1"_s), fib(k), evaluada(fib(k + 2) + u"-1"_s)));
    paso.lamina = laminaDeTiras(n + 1, todasLasTiras(n + 1),
                                [k](const auto &tira) { return ultimoDomino(tira) == k; });
    return paso;
}

Pasos pasosDeSumaDeLosPrimeros(int n)
{
    return Pasos(n + 2, [n](qsizetype i) -> Paso {
        if (i == 0)
            return pasoDeTiras(n + 1);
        if (i <= n)
            return pasoDeUltimoDomino(n, static_cast<int>(i));
        Paso paso{
            Traduce(
                u"Falta la tira que solo tiene cuadrados: las demás son una menos que todas."_s),
            {u"S_{%1} = F(%2) - 1 = %3 - 1 = %4"_s.arg(n).arg(n + 2).arg(
                fib(n + 2), evaluada(fib(n + 2) + u"-1"_s))}};
        paso.lamina = laminaDeTiras(n + 1, todasLasTiras(n + 1),
                                    [](const auto &tira) { return ultimoDomino(tira) == 0; });
        return paso;
    });
}

/// The squares of sides F(1) … F(k), each at the longer side of the rectangle of those before it.
Lamina laminaDeCuadrados(int k)
{
    constexpr int MasCuadrados = 14;
    if (k > MasCuadrados)
        return {};
    Lamina lamina(Traduce(u"Un rectángulo hecho con los cuadrados de lados F(1) a F(%1)"_s).arg(k));
    qreal ancho = 0;
    qreal alto = 0;
    for (int i = 1; i <= k; ++i) {
        const qreal lado = fib(i).toDouble();
        const bool alLado = i % 2 == 1;
        lamina.rectangulo(QRectF(alLado ? ancho : 0, alLado ? 0 : alto, lado, lado),
                          i == k ? Tono{Tono::Acento} : Tono::serie(i), true, fib(i));
        ancho = alLado ? ancho + lado : lado;
        alto = alLado ? lado : alto + lado;
    }
    return lamina;
}

Pasos pasosDeCuadrados(int n)
{
    return Pasos(n,
                 [](qsizetype i) {
                     const int k = static_cast<int>(i) + 1;
                     const QString antes = evaluada(fib(k - 1) + u'*' + fib(k));
                     const QString total = evaluada(fib(k) + u'*' + fib(k + 1));
                     Paso paso{
                         Traduce(u"El cuadrado de lado F(%1) = %2 se pone junto al lado mayor: el "
                                 u"rectángulo "
                                 "pasa a medir F(%1) por F(%3)."_s)
                             .arg(k)
                             .arg(fib(k))
                             .arg(k + 1),
                         {u"F(%1)*F(%2) + F(%2)^2 = %3 + %4^2 = %5"_s.arg(k - 1).arg(k).arg(
                              antes, fib(k), total),
                          u"F(%1)*F(%2) = %3"_s.arg(k).arg(k + 1).arg(total)},
                         Traduce(u"El área es la suma de los cuadrados, y es base por altura."_s)};
                     paso.lamina = laminaDeCuadrados(k);
                     return paso;
                 })
        .comoPelicula();
}

/// The square of side F(k) and the rectangle of the two numbers beside it.
Lamina laminaDeCassini(int k)
{
    constexpr int MayorLado = 9;
    if (k > MayorLado)
        return {};
    Lamina lamina(Traduce(u"Un cuadrado de lado F(%1) y un rectángulo de F(%2) por F(%3)"_s)
                      .arg(k)
                      .arg(k - 1)
                      .arg(k + 1));
    const auto casillas = [&](QPointF esquina, int ancho, int alto, Tono tono) {
        for (int i = 0; i < ancho * alto; ++i)
            lamina.rectangulo(QRectF(esquina + QPointF(i % ancho, i / ancho), QSizeF(0.9, 0.9)),
                              tono, true);
    };
    const int f = fib(k).toInt();
    casillas({0, 0}, f, f, Tono::serie(0));
    if (k > 1)
        casillas({f + 1.0, 0}, fib(k + 1).toInt(), fib(k - 1).toInt(), Tono::serie(1));
    return lamina;
}

Pasos pasosDeCassini(int n)
{
    return Pasos(n, [](qsizetype i) {
        const int k = static_cast<int>(i) + 1;
        Paso paso{k == 1 ? Traduce(u"Para n = 1 se comprueba."_s)
                         : Traduce(u"Para n = %1 la diferencia cambia de signo."_s).arg(k),
                  {u"F(%1)*F(%2) - F(%3)^2 = %4*%5 - %6^2 = %7"_s.arg(k - 1).arg(k + 1).arg(k).arg(
                      fib(k - 1), fib(k + 1), fib(k), k % 2 == 0 ? u"1"_s : u"-1"_s)}};
        if (k > 1) {
            paso.formulas << Formula(
                u"F(%1)*F(%2) - F(%3)^2 = F(%1)^2 - F(%4)*F(%3)"_s.arg(k - 1).arg(k + 1).arg(k).arg(
                    k - 2));
            paso.regla = Traduce(
                u"Se pone F(k + 1) = F(k) + F(k − 1), y luego F(k) − F(k − 1) = F(k − 2)"_s);
        }
        paso.lamina = laminaDeCassini(k);
        return paso;
    });
}

/// The pairs of indices of Euclid's algorithm.
QList<std::pair<int, int>> parejas(int m, int n)
{
    QList<std::pair<int, int>> lista = {{std::max(m, n), std::min(m, n)}};
    while (lista.last().second > 0)
        lista << std::pair(lista.last().second, lista.last().first % lista.last().second);
    return lista;
}

Pasos pasosDeMcd(int m, int n)
{
    const auto lista = parejas(m, n);
    return Pasos(lista.size(), [lista](qsizetype i) -> Paso {
        const auto &[a, b] = lista[i];
        if (b == 0)
            return {Traduce(u"F(0) = 0: el mcd es F(%1)."_s).arg(a),
                    {u"mcd(F(%1); F(0)) = F(%1) = %2"_s.arg(a).arg(fib(a))}};
        return {
            Traduce(u"Al dividir los índices queda %1: en lugar de F(%2) se puede poner F(%1)."_s)
                .arg(a % b)
                .arg(a),
            {u"%1 mod %2 = %3"_s.arg(a).arg(b).arg(a % b),
             u"mcd(F(%1); F(%2)) = mcd(F(%2); F(%3))"_s.arg(a).arg(b).arg(a % b)},
            Traduce(
                u"F(m + n) = F(m) · F(n + 1) + F(m − 1) · F(n), y F(m) y F(m − 1) son primos entre "
                "sí"_s)};
    });
}

} // namespace

Pasos pasosDeIdentidad(int fila, int m, int n)
{
    switch (fila) {
    case 0:
        return pasosDeCassini(n);
    case 1:
        return pasosDeMcd(m, n);
    case 2:
        return pasosDeSumaDeIndices(m, n);
    case 3:
        return pasosDeSumaDeLosPrimeros(n);
    default:
        return pasosDeCuadrados(n);
    }
}
