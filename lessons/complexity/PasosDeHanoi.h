// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/complexity/TorresHanoi.h"
#include "shell/core/steps/Pasos.h"

/// The name of a pole, 0 to 2: A, B or C.
QString nombreDePalo(int palo);

/// Why so many moves are needed: at the start, the recurrence of the towers of 1, 2, … discs; after
/// a move, what each disc still costs from where it lies, the largest first, and the moves made
/// counted against the least.
Pasos pasosDeHanoi(const TorresHanoi &torres);
