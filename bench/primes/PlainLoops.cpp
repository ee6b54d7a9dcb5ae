// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlainLoops.h"

#include <cmath>

namespace {

const Moneda kZero, kOne = Moneda::deEntero(1), kTwo = Moneda::deEntero(2);

} // namespace

long naiveLoop(Moneda n)
{
    long steps = 0;
    Moneda d = kTwo;
    while (n > kOne) {
        ++steps;
        if (ModCy(n, d) != kZero)
            d = d == kTwo ? Moneda::deEntero(3) : d + kTwo;
        else
            n = cociente(n, d);
    }
    return steps;
}

long improvedLoop(Moneda n)
{
    long steps = 0;
    Moneda d = Moneda::deEntero(5);
    while (std::sqrt(n.real()) >= d.real()) {
        if (ModCy(n, d) == kZero)
            n = cociente(n, d);
        else
            d = d + Moneda::deEntero(steps % 2 == 0 ? 2 : 4);
        ++steps;
    }
    return steps;
}
