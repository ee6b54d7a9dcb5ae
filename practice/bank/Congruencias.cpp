// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/Congruencias.h"

QList<TipoDeEjercicio> ejerciciosDeCongruencias()
{
    return {};
}
