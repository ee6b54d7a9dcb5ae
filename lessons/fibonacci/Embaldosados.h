// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Lamina.h"

#include <QList>
#include <functional>

/// A strip of cells covered by squares (1) and dominoes (2), from the left.
using Embaldosado = QList<int>;

/// All ways of covering a strip of so many cells; there are F(largo + 1) (Arthur T. Benjamin and
/// Jennifer J. Quinn, "Proofs That Really Count", 2003). None for a negative length.
QList<Embaldosado> embaldosados(int largo);

/// Whether two tiles meet behind so many cells.
bool hayJunta(const Embaldosado &tira, int tras);
/// The cell, from 1 on, where the last domino begins; 0 without dominoes.
int ultimoDomino(const Embaldosado &tira);

/// The longest strip whose coverings are drawn.
inline constexpr int MayorTira = 7;

/// All coverings of a strip, in columns; those that are meant in full colours. Empty for a strip
/// that is longer than MayorTira.
Lamina laminaDeTiras(int largo, const QString &descripcion,
                     const std::function<bool(const Embaldosado &)> &destaca);
