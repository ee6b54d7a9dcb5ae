// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// What the program does in another way here, because something that it can do without is missing:
/// a sentence each, in the language of the program. Empty where nothing is.
QStringList carencias();
