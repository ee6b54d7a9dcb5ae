// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// A real in [0, 1) from a generator that is seeded from the clock at each call, so that no two
/// runs of the program draw the same exercises. Not for secrets: `PrimoAleatorio` has its own
/// source.
double AzarUnitario();

/// A uniform whole number in a..b (a ≤ b), from AzarUnitario. Throws Desbordamiento when b - a + 1
/// does not fit 32 bits.
std::int32_t AleatorioEntre(std::int32_t a, std::int32_t b);
