// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/fibonacci/SumasDeFibonacci.h"

#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// F(desde) + F(desde + salto) + … + F(hasta), or the squares of them.
struct SumaPedida
{
    int desde, salto, hasta;
    bool cuadrados = false;
    QString regla;   ///< what such a sum is, with letters
    QString formula; ///< the same with these numbers, from which the value can be computed
    qint64 valor;

    QString texto() const
    {
        const auto termino = [this](int i) {
            return u"F(%1)"_s.arg(i) + (cuadrados ? u"²"_s : QString());
        };
        return u"%1 + %2 + … + %3"_s.arg(termino(desde), termino(desde + salto), termino(hasta));
    }
};

SumaPedida primeros(int n)
{
    return {1,
            1,
            n,
            false,
            u"F(1) + F(2) + … + F(n) = F(n + 2) − 1"_s,
            u"%1 - 1"_s.arg(fibonacciDe(n + 2)),
            fibonacciDe(n + 2) - 1};
}

SumaPedida pares(int k)
{
    return {2,
            2,
            2 * k,
            false,
            u"F(2) + F(4) + … + F(2k) = F(2k + 1) − 1"_s,
            u"%1 - 1"_s.arg(fibonacciDe(2 * k + 1)),
            fibonacciDe(2 * k + 1) - 1};
}

SumaPedida impares(int k)
{
    return {1,
            2,
            2 * k - 1,
            false,
            u"F(1) + F(3) + … + F(2k − 1) = F(2k)"_s,
            QString::number(fibonacciDe(2 * k)),
            fibonacciDe(2 * k)};
}

SumaPedida cuadrados(int n)
{
    const qint64 a = fibonacciDe(n);
    const qint64 b = fibonacciDe(n + 1);
    return {1,
            1,
            n,
            true,
            u"F(1)² + F(2)² + … + F(n)² = F(n) · F(n + 1)"_s,
            u"%1*%2"_s.arg(a).arg(b),
            a * b};
}

SumaPedida tramo(int m, int n)
{
    const qint64 a = fibonacciDe(n + 2);
    const qint64 b = fibonacciDe(m + 1);
    return {m,
            1,
            n,
            false,
            u"F(m) + F(m + 1) + … + F(n) = F(n + 2) − F(m + 1)"_s,
            u"%1 - %2"_s.arg(a).arg(b),
            a - b};
}

SumaPedida sorteada(int nivel, Sorteo &sorteo)
{
    const int k = static_cast<int>(sorteo.entre(5, 11));
    if (nivel == 1)
        return primeros(static_cast<int>(sorteo.entre(6, 20)));
    if (nivel == 2)
        return sorteo.moneda() ? pares(k) : impares(k);
    return sorteo.moneda() ? cuadrados(k + 2) : tramo(k, k + static_cast<int>(sorteo.entre(5, 12)));
}

QList<ErrorTipico> erroresDe(const SumaPedida &s)
{
    const auto numero = [](qint64 n) { return QString::number(n); };
    const qint64 ultimo =
        s.cuadrados ? fibonacciDe(s.hasta) * fibonacciDe(s.hasta) : fibonacciDe(s.hasta);
    return {{numero(s.valor + 1),
             Traduce(u"Sobra o falta 1: pruebe su fórmula con dos sumandos."_s), u"falta-1"_s},
            {numero(s.valor - 1),
             Traduce(u"Sobra o falta 1: pruebe su fórmula con dos sumandos."_s), u"falta-1"_s},
            {numero(s.valor - ultimo), Traduce(u"Falta el último sumando."_s), u"sin-el-ultimo"_s},
            {numero(ultimo), Traduce(u"Ese es el último sumando solo."_s), u"solo-el-ultimo"_s},
            {numero(fibonacciDe(s.hasta + 2) - 1),
             Traduce(u"Esa es la suma de todos, desde F(1), y sin cuadrados."_s), u"todos"_s}};
}

} // namespace

Ejercicio sumaDeFibonacci(int nivel, Sorteo &sorteo)
{
    const SumaPedida suma = sorteada(nivel, sorteo);
    return {.enunciado = Traduce(u"¿Cuánto vale %1?"_s).arg(suma.texto()),
            .forma = {FormaDeRespuesta::Entero},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = QString::number(suma.valor),
            .juzga = juicioDe(QString::number(suma.valor), erroresDe(suma),
                              Traduce(u"No es esa la suma."_s)),
            .pistas = {Traduce(u"Calcule la suma de los dos primeros, la de los tres primeros… y "
                               "compárelas con los números de Fibonacci."_s),
                       Traduce(u"Hay una fórmula: %1."_s).arg(suma.regla)},
            .solucion = [suma] {
                return Pasos(
                    QList<Paso>{{Traduce(u"Por inducción se demuestra que %1."_s).arg(suma.regla)},
                                {Traduce(u"Con estos números:"_s),
                                 {u"%1 = %2"_s.arg(suma.formula).arg(suma.valor)}}});
            }};
}
