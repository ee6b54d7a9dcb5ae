// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/shared/Numeros.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"

#include <QHash>
#include <QStringList>
#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

const QList<qint64> &primosPequenos()
{
    static const QList<qint64> primos = [] {
        constexpr std::size_t Limite = 12'000;
        std::vector<bool> compuesto(Limite);
        QList<qint64> hallados;
        for (std::size_t n = 2; n < Limite; ++n) {
            if (compuesto[n])
                continue;
            hallados << static_cast<qint64>(n);
            for (std::size_t m = n * n; m < Limite; m += n)
                compuesto[m] = true;
        }
        return hallados;
    }();
    return primos;
}

bool esPrimoPequeno(qint64 n)
{
    return std::binary_search(primosPequenos().begin(), primosPequenos().end(), n);
}

QList<qint64> primosEntre(qint64 a, qint64 b)
{
    const auto &primos = primosPequenos();
    return {std::lower_bound(primos.begin(), primos.end(), a),
            std::upper_bound(primos.begin(), primos.end(), b)};
}

qint64 primoEntre(qint64 a, qint64 b, Sorteo &sorteo)
{
    return sorteo.de(primosEntre(a, b));
}

QList<qint64> coprimosCon(qint64 n, qint64 a, qint64 b)
{
    return losQue(a, b, [n](qint64 i) { return std::gcd(i, n) == 1; });
}

const GrupoUnidades &grupoDe(qint64 n)
{
    static QHash<qint64, GrupoUnidades> grupos;
    auto hallado = grupos.constFind(n);
    if (hallado == grupos.constEnd())
        hallado = grupos.insert(n, GrupoUnidades(static_cast<std::int32_t>(n)));
    return *hallado;
}

qint64 unidadDe(qint64 n, Sorteo &sorteo, qint64 menorOrden)
{
    QList<qint64> unidades;
    for (const Unidad &u : grupoDe(n).unidades()) {
        if (u.valor != 1 && u.valor != n - 1 && u.orden >= menorOrden)
            unidades << u.valor;
    }
    return sorteo.de(unidades);
}

qint64 inversoModular(qint64 a, qint64 m)
{
    return InversoMod(QString::number(a), QString::number(m)).toLongLong();
}

qint64 restoPositivo(qint64 a, qint64 n)
{
    return (a % n + n) % n;
}

qint64 restoDe(const QString &numero, qint64 n)
{
    if (numero.size() <= 18)
        return restoPositivo(numero.toLongLong(), n);
    return Modulo(numero, QString::number(n)).toLongLong();
}

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

qint64 fibonacciDe(int n)
{
    qint64 f = 0;
    qint64 siguiente = 1;
    for (int i = 0; i < n; ++i)
        f = std::exchange(siguiente, f + siguiente);
    return f;
}

QString combinacion(qint64 a, const QString &x, qint64 b, const QString &y)
{
    if (x.size() <= 10 && y.size() <= 10 && std::max(a, b) < 100'000'000)
        return QString::number(a * x.toLongLong() + b * y.toLongLong());
    return calculaEntero(u"(%1)*(%2)+(%3)*(%4)"_s.arg(QString::number(a), x, QString::number(b), y))
        .value_or(QString());
}

QList<qint64> valoresDePrimerOrden(qint64 a, qint64 c, qint64 x0, int n)
{
    QList<qint64> x = {x0};
    while (x.size() <= n + 1)
        x << a * x.back() + c;
    return x;
}

QString numero(qint64 n)
{
    return QString::number(n);
}

QString listaDe(const QList<qint64> &numeros, const QString &entre)
{
    QStringList lista;
    for (const qint64 n : numeros)
        lista << numero(n);
    return lista.join(entre);
}
