// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/SenalesDeFin.h"

// No system sends a page signals: that it goes, its script tells the program (numora/web/Puerta).

struct SenalesDeFin::Oidos
{
};

SenalesDeFin::SenalesDeFin(QObject *padre) : QObject(padre) {}

SenalesDeFin::~SenalesDeFin() = default;
