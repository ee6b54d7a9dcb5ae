// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/steps/ClaveEnCifras.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/steps/EnteroLargo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

ClaveEnCifras claveDe(const QString &q1, const QString &q2, const QString &s, int r)
{
    const EnteroLargo p(q1), q(q2);
    const QString fi = ((p - 1) * (q - 1)).texto();
    return {q1, q2, (p * q).texto(), fi, s, InversoMod(s, fi), r};
}

} // namespace

bool ClaveEnCifras::corto(const QString &numero, int bits)
{
    return NumeroDeBits(numero) <= bits;
}

QList<ClavePublicada> clavesPublicadas()
{
    return {
        {u"q = 2773, la del artículo de 1978"_s, claveDe(u"47"_s, u"59"_s, u"17"_s, 1)},
        {u"Dos primos próximos"_s, claveDe(u"1000000007"_s, u"1000000009"_s, u"65537"_s, 1)},
        {u"s = 3, dos caracteres por paquete"_s,
         claveDe(u"998244353"_s, u"1000000007"_s, u"3"_s, 2)},
        {u"RSA-129, de 129 cifras (1977)"_s,
         claveDe(u"3490529510847650949147849619903898133417764638493387843990820577"_s,
                 u"32769132993266709549961988190834461413177642967992942539798288533"_s, u"9007"_s,
                 2)},
    };
}
