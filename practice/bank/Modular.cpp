// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/Modular.h"

QList<TipoDeEjercicio> ejerciciosDeModular()
{
    return {};
}
