// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/RazonAurea.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"

#include <cmath>
#include <numbers>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A decimal fraction of at most so many digits and a sign that there are more.
QString recortado(const QString &decimal)
{
    constexpr int maximo = 26;
    return decimal.size() <= maximo ? decimal : decimal.left(maximo) + u'…';
}

} // namespace

QList<CocienteFibonacci> cocientesFibonacci(int hasta)
{
    QList<CocienteFibonacci> cocientes;
    QString f = u"1"_s;
    QString siguiente = u"1"_s;
    for (int n = 1; n <= hasta; ++n) {
        const double logError = -n * std::log10(std::numbers::phi) - std::log10(f.toDouble());
        cocientes << CocienteFibonacci{n, f, siguiente, recortado(ADecimal(siguiente + u'/' + f)),
                                       logError};
        QString suma = calculaEntero(f + u'+' + siguiente).value();
        f = std::move(siguiente);
        siguiente = std::move(suma);
    }
    return cocientes;
}

QString numeroAureo(int decimales)
{
    // (1 + √5) / 2 with the point moved behind the last decimal.
    const QString escala = u"10^%1"_s.arg(decimales);
    QString cifras = calculaEntero(u"(%1+raiz(5*%1*%1))/2"_s.arg(escala)).value();
    return cifras.insert(1, u',');
}

QString textoDePotencia(double logaritmo)
{
    int exponente = static_cast<int>(std::floor(logaritmo));
    double mantisa = std::pow(10.0, logaritmo - exponente);
    // Two decimals may round up to 10,00.
    if (mantisa >= 9.995) {
        mantisa = 1;
        ++exponente;
    }
    return formatoDecimal(mantisa, 2) + u" · 10"_s + enSuperindice(QString::number(exponente));
}
