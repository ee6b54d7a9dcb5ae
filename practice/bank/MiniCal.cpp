// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/MiniCal.h"

QList<TipoDeEjercicio> ejerciciosDeMiniCal()
{
    return {};
}
