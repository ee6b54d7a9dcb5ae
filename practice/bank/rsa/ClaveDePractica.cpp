// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/rsa/ClaveDePractica.h"

#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/PasosDeInverso.h"

using namespace Qt::Literals::StringLiterals;

std::pair<qint64, qint64> dosDe(const QList<qint64> &primos, Sorteo &sorteo)
{
    const qsizetype i = sorteo.entre(0, primos.size() - 2);
    return {primos[i], primos[sorteo.entre(i + 1, primos.size() - 1)]};
}

ClaveDePractica claveCon(std::pair<qint64, qint64> primos, qint64 mayorS, Sorteo &sorteo)
{
    const auto [p, r] = primos;
    const qint64 fi = (p - 1) * (r - 1);
    QList<qint64> exponentes;
    for (const qint64 s : coprimosCon(fi, 3, std::min(mayorS, fi - 2))) {
        if (s * s % fi != 1)
            exponentes << s;
    }
    const qint64 s = sorteo.de(exponentes);
    return {p, r, s, inversoModular(s, fi)};
}

namespace {

Paso pasoDeFi(const ClaveDePractica &k)
{
    return {Traduce(u"φ(q) es el producto de los dos primos, cada uno menos 1."_s),
            {u"φ(%1*%2) = %3*%4 = %5"_s.arg(k.p).arg(k.r).arg(k.p - 1).arg(k.r - 1).arg(k.fi())}};
}

} // namespace

Pasos pasosDeT(const ClaveDePractica &k)
{
    return Pasos::seguidos({Pasos(QList<Paso>{pasoDeFi(k)}),
                            pasosDeInverso(QString::number(k.s), QString::number(k.fi()))});
}
