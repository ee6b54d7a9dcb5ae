// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/shared/Factores.h"

#include "practice/bank/shared/Numeros.h"

#include <QStringList>
#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

qint64 PotenciaDePrimo::valor() const
{
    return potencia(primo, exponente);
}

Factores factoresConPotencia(const QList<qint64> &primos, int cuantos, int mayor, Sorteo &sorteo)
{
    QList<qint64> bases = sorteo.barajada(primos).first(cuantos);
    std::sort(bases.begin(), bases.end());
    Factores factores;
    for (const qint64 p : bases)
        factores.append({p, static_cast<int>(sorteo.entre(1, mayor))});
    ++factores[sorteo.entre(0, cuantos - 1)].exponente;
    return factores;
}

Factores factoresDe(qint64 n)
{
    Factores factores;
    for (qint64 p = 2; p * p <= n; ++p) {
        int exponente = 0;
        for (; n % p == 0; n /= p)
            ++exponente;
        if (exponente > 0)
            factores.append({p, exponente});
    }
    if (n > 1)
        factores.append({n, 1});
    return factores;
}

qint64 productoDe(const Factores &factores)
{
    return std::accumulate(
        factores.begin(), factores.end(), qint64(1),
        [](qint64 producto, const PotenciaDePrimo &f) { return producto * f.valor(); });
}

qint64 fiDe(const Factores &factores)
{
    qint64 fi = 1;
    for (const PotenciaDePrimo &f : factores)
        fi *= f.valor() / f.primo * (f.primo - 1);
    return fi;
}

qint64 lambdaDe(const Factores &factores)
{
    qint64 lambda = 1;
    for (const PotenciaDePrimo &f : factores) {
        const qint64 fi = fiDe({f});
        lambda = std::lcm(lambda, f.primo == 2 && f.exponente > 2 ? fi / 2 : fi);
    }
    return lambda;
}

QString enFormula(const Factores &factores)
{
    QStringList potencias;
    for (const PotenciaDePrimo &f : factores)
        potencias << QString::number(f.primo) +
                         (f.exponente > 1 ? u'^' + QString::number(f.exponente) : QString());
    return potencias.join(u'*');
}
