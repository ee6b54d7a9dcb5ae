// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/Zeckendorf.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// F(2), F(3), … up to n.
QStringList fibonacciHasta(const QString &n)
{
    QStringList lista;
    QString f = u"1"_s;
    QString siguiente = u"2"_s;
    while (!EsMayor(n, f)) {
        lista << f;
        QString suma = calculaEntero(f + u'+' + siguiente).value();
        f = std::move(siguiente);
        siguiente = std::move(suma);
    }
    return lista;
}

/// The k with F(k) = valor, at least 2; 0 when there is none.
int indiceDe(qint64 valor)
{
    qint64 f = 1;
    qint64 siguiente = 2;
    int k = 2;
    while (f < valor) {
        siguiente += f;
        f = siguiente - f;
        ++k;
    }
    return f == valor ? k : 0;
}

} // namespace

QList<PasoZeckendorf> representacionZeckendorf(const QString &n)
{
    const QStringList lista = fibonacciHasta(n);
    QList<PasoZeckendorf> pasos;
    QString resto = n;
    for (qsizetype i = lista.size() - 1; i >= 0; --i) {
        const QString &sumando = lista.at(i);
        if (EsMayor(resto, sumando))
            continue;
        const QString queda = calculaEntero(resto + u'-' + sumando).value();
        pasos << PasoZeckendorf{resto, static_cast<int>(i) + 2, sumando, queda};
        resto = queda;
    }
    return pasos;
}

QString codigoZeckendorf(const QList<PasoZeckendorf> &pasos)
{
    if (pasos.isEmpty())
        return {};
    const int mayor = pasos.first().indice;
    QString codigo(mayor - 1, u'0');
    for (const PasoZeckendorf &paso : pasos)
        codigo[mayor - paso.indice] = u'1';
    return codigo;
}

FalloZeckendorf juzgaZeckendorf(const QString &suma, int n)
{
    QList<int> indices;
    qint64 total = 0;
    for (const QString &termino : suma.split(u'+')) {
        bool esEntero = false;
        const qint64 valor = Evalua(QString(termino)).toInt(&esEntero);
        if (!esEntero)
            return FalloZeckendorf::NoEsSuma;
        if (valor == 0)
            return FalloZeckendorf::Cero;
        if (valor < 1 || indiceDe(valor) == 0)
            return FalloZeckendorf::NoEsFibonacci;
        indices << indiceDe(valor);
        total += valor;
    }
    if (total != n)
        return FalloZeckendorf::OtraSuma;
    std::sort(indices.begin(), indices.end());
    const auto vecinos = std::adjacent_find(indices.cbegin(), indices.cend(),
                                            [](int a, int b) { return b - a < 2; });
    return vecinos == indices.cend() ? FalloZeckendorf::Ninguno : FalloZeckendorf::Consecutivos;
}
