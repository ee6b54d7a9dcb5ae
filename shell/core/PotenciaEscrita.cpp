// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/PotenciaEscrita.h"

#include "shell/core/Formatos.h"

QString potenciaEscrita(qint64 base, qint64 exponente)
{
    return QString::number(base) + enSuperindice(QString::number(exponente));
}
