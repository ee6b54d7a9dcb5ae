// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/steps/RaicesEnteras.h"

#include "bignum/gateway/ModBignum.h"

EnteroLargo potenciaEntera(EnteroLargo b, int e)
{
    EnteroLargo producto = 1;
    for (; e > 0; e /= 2) {
        if (e % 2 == 1)
            producto = producto * b;
        if (e > 1)
            b = b * b;
    }
    return producto;
}

EnteroLargo raizEntera(const EnteroLargo &n, int k)
{
    if (n < 2)
        return n;
    EnteroLargo x = potenciaEntera(2, (NumeroDeBits(n.texto()) + k - 1) / k);
    while (true) {
        const EnteroLargo y = (x * (k - 1) + n / potenciaEntera(x, k - 1)) / k;
        if (y >= x)
            return x;
        x = y;
    }
}
