// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/RSA.h"

QList<TipoDeEjercicio> ejerciciosDeRSA()
{
    return {};
}
