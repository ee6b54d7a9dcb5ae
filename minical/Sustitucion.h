// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/ColVariables.h"

#include <QString>

/// The expression with every name of the collection replaced by its value: for each name in the
/// order of the collection, every occurrence as plain text. Names are cell names: one capital
/// letter followed by a number from 1 to 99; values hold no letter. Throws Desbordamiento, before
/// anything is built, when the text would have more than `maximo` characters.
QString sustituyeVariables(const ColVariables &variables, const QString &expresion,
                           qsizetype maximo);
