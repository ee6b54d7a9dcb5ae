// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

/// How many calls the recursive F(0), F(1), … F(n) make, each from those before it: the recurrence
/// beside the tree, of which the two parts have a colour each while it can be drawn. With a memory,
/// the second call finds its value there. n from 0 to 89: the calls of F(90) do not fit 64 bits.
Pasos pasosDeLlamadas(int n, bool conMemoria);
