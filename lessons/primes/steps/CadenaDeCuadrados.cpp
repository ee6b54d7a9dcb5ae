// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/steps/CadenaDeCuadrados.h"

#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/OtrasEntradas.h"
#include "shell/core/Lectura.h"

using namespace Qt::Literals::StringLiterals;

ParteImpar parteImpar(const QString &par)
{
    const QString binario = EnBase(2, par);
    ParteImpar partes;
    while (binario[binario.size() - 1 - partes.s] == u'0')
        ++partes.s;
    partes.d = calculaEntero(u"(%1)/2^%2"_s.arg(par).arg(partes.s)).value_or(QString());
    return partes;
}

QString anterior(const QString &n)
{
    QString menor = n;
    if (QChar &ultima = menor.back(); ultima != u'0') {
        ultima = QChar(ultima.unicode() - 1);
        return menor;
    }
    return calculaEntero(n + u"-1"_s).value_or(QString());
}

bool CadenaDeCuadrados::pasa() const
{
    if (acabaEnUno())
        return valores.size() == 1;
    return valores.size() <= exponente.s && valores.last() == anterior(n);
}

std::optional<QString> CadenaDeCuadrados::raizDeUno() const
{
    if (!acabaEnUno() || valores.size() == 1)
        return {};
    return valores[valores.size() - 2];
}

CadenaDeCuadrados cadenaDeCuadrados(const QString &n, const QString &base)
{
    const QString menosUno = anterior(n);
    CadenaDeCuadrados cadena{n, base, parteImpar(menosUno), {}};
    QString x = PotenciaMod(base, cadena.exponente.d, n);
    cadena.valores << x;
    for (int i = 0; i < cadena.exponente.s && x != u"1"_s && x != menosUno; ++i) {
        x = PotenciaMod(x, u"2"_s, n);
        cadena.valores << x;
    }
    return cadena;
}

QString primerTestigo(const QString &n)
{
    for (const QString &base : basesPrimas()) {
        if (EsMayor(base, n) && !cadenaDeCuadrados(n, base).pasa())
            return base;
    }
    return basesPrimas().first();
}

const QStringList &basesPrimas()
{
    static const QStringList bases = [] {
        QStringList primos;
        std::vector<std::uint32_t> lista;
        AgregaPrimos(2, 229, lista);
        for (const std::uint32_t primo : lista)
            primos << QString::number(primo);
        return primos;
    }();
    return bases;
}
