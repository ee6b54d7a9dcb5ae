// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"

/// The two trial divisions of the lesson as bare loops, without yields, stop flag or collection:
/// what the real ones are measured against. Each gives the number of divisors tried.
long naiveLoop(Moneda n);
long improvedLoop(Moneda n);
