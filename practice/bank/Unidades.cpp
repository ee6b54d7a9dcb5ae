// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/Unidades.h"

QList<TipoDeEjercicio> ejerciciosDeUnidades()
{
    return {};
}
