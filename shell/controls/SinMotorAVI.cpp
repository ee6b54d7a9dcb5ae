// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/MotorAVI.h"

bool MotorAVI::disponible()
{
    return false;
}

MotorAVI *MotorAVI::nuevo(const QString &, QObject *)
{
    return nullptr;
}
