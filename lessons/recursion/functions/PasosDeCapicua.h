// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

#include <QStringList>

/// Why a number plus its reverse is a palindrome or not: each sum in columns, with its carries, and
/// where a carry makes two columns unequal that would give the same digit. `numeros` as they follow
/// each other from the start on, of which those count that come before the first that is no whole
/// number in digits; `hallado`: the last of them is a palindrome.
Pasos pasosDeCapicua(const QStringList &numeros, bool hallado);
