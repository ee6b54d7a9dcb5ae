// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/PasosDeZeckendorf.h"

#include "lessons/fibonacci/NumeroDeFibonacci.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Paso pasoDeSumando(const PasoZeckendorf &sumando)
{
    const int k = sumando.indice;
    return {
        Traduce(u"En %1 cabe F(%2) = %3 y ya no F(%4). Queda %5, que es menor que F(%6)."_s)
            .arg(sumando.resto)
            .arg(k)
            .arg(sumando.sumando)
            .arg(k + 1)
            .arg(sumando.queda)
            .arg(k - 1),
        {u"F(%1) = %2 <= %3 < %4 = F(%5)"_s.arg(k)
             .arg(sumando.sumando, sumando.resto, numeroDeFibonacci(k + 1))
             .arg(k + 1),
         u"%1 - %2 = %3 < F(%4) = %5"_s.arg(sumando.resto, sumando.sumando, sumando.queda)
             .arg(k - 1)
             .arg(numeroDeFibonacci(k - 1))},
        Traduce(u"F(k + 1) − F(k) = F(k − 1): el vecino F(k − 1) no puede ser el siguiente."_s)};
}

Paso pasoDelTotal(const QList<PasoZeckendorf> &sumandos)
{
    QStringList valores;
    QStringList nombres;
    for (const PasoZeckendorf &sumando : sumandos) {
        valores << sumando.sumando;
        nombres << u"F(%1)"_s.arg(sumando.indice);
    }
    return {Traduce(u"No queda nada: el número es la suma, y no hay dos sumandos consecutivos."_s),
            {u"%1 = %2 = %3"_s.arg(sumandos.first().resto, valores.join(u" + "_s),
                                   nombres.join(u" + "_s))},
            Traduce(u"Teorema de Zeckendorf: esta suma es la única."_s)};
}

} // namespace

Pasos pasosDeZeckendorf(const QList<PasoZeckendorf> &sumandos)
{
    return Pasos(sumandos.size() + 1, [sumandos](qsizetype i) {
        return i < sumandos.size() ? pasoDeSumando(sumandos[i]) : pasoDelTotal(sumandos);
    });
}
