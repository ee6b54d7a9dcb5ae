// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>

/// The programs of the system that do something, in the order in which they are tried: a program
/// that is looked for in the search path, and its words.

/// Calculators.
const QList<QStringList> &calculadoras();

/// What tells of the machine.
const QList<QStringList> &informadores();
