// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/NumerosPequenos.h"

#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/OtrasEntradas.h"

#include <QStringList>
#include <numeric>
#include <utility>

qint64 potenciaModular(qint64 b, qint64 e, qint64 m)
{
    qint64 resultado = 1 % m;
    for (b %= m; e > 0; e /= 2) {
        if (e % 2 == 1)
            resultado = resultado * b % m;
        b = b * b % m;
    }
    return resultado;
}

qint64 potencia(qint64 b, int e)
{
    qint64 resultado = 1;
    for (int i = 0; i < e; ++i)
        resultado *= b;
    return resultado;
}

qint64 inversoModular(qint64 a, qint64 m)
{
    return InversoMod(QString::number(a), QString::number(m)).toLongLong();
}

qint64 fibonacciDe(int n)
{
    qint64 f = 0;
    qint64 siguiente = 1;
    for (int i = 0; i < n; ++i)
        f = std::exchange(siguiente, f + siguiente);
    return f;
}

QList<qint64> primosEntre(qint64 a, qint64 b)
{
    std::vector<std::uint32_t> primos;
    AgregaPrimos(a, static_cast<std::int32_t>(b), primos);
    return {primos.begin(), primos.end()};
}

QList<qint64> coprimosCon(qint64 n, qint64 a, qint64 b)
{
    QList<qint64> coprimos;
    for (qint64 i = a; i <= b; ++i) {
        if (std::gcd(i, n) == 1)
            coprimos << i;
    }
    return coprimos;
}

QString textoDe(const QList<qint64> &numeros, const QString &entre)
{
    QStringList textos;
    for (const qint64 numero : numeros)
        textos << QString::number(numero);
    return textos.join(entre);
}
