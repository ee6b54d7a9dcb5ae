// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Lamina.h"

#include <QList>
#include <QString>

/// A number, what was split off it, and what that left; no rest where nothing was left.
struct RamaDeFactores
{
    QString numero;
    QString factor; ///< with its exponent as it is printed
    bool primo = true;
    QString resto = {};
};

/// The tree of factors, each number above the two that it was split into. Only its last branches
/// where there are many: the rest would be too small to read.
Lamina arbolDeFactores(const QList<RamaDeFactores> &ramas);
