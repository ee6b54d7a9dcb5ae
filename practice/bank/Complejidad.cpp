// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/Complejidad.h"

QList<TipoDeEjercicio> ejerciciosDeComplejidad()
{
    return {};
}
