// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/InversoGrande.h"

#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ModBignum.h"

using namespace Qt::Literals::StringLiterals;

InversoGrande invierte(const QString &a, const QString &n)
{
    const QString resto = Modulo(a, n);
    InversoGrande resultado{Mcd(resto, n), {}};
    if (resultado.mcd != u"1"_s)
        return resultado;
    // Modulo 1 every number is 0, which is its own inverse there.
    resultado.inverso = n == u"1"_s ? u"0"_s : InversoMod(resto, n);
    return resultado;
}

QString moduloFacil(int cifras)
{
    const QString p = PrimoSiguiente(QString::number(AleatorioEntre(1'000, 3'000)));
    const QString q = PrimoSiguiente(QString::number(AleatorioEntre(3'100, 9'000)));
    // p·q·r has the wanted length for r from 10^(cifras-1)/(p·q) on up to ten times as much; up to
    // nine times, the next prime stays within.
    const QString menor =
        Evalua(u"10^%1/(%2*%3)"_s.arg(QString::number(cifras - 1), p, q), {}, Aritmetica::Entera);
    const QString r =
        PrimoSiguiente(Evalua(u"%1*%2/10^6"_s.arg(menor).arg(AleatorioEntre(1'000'000, 9'000'000)),
                              {}, Aritmetica::Entera));
    return Evalua(u"%1*%2*%3"_s.arg(p, q, r), {}, Aritmetica::Entera);
}
