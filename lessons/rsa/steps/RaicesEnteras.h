// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/EnteroLargo.h"

/// b^e for e ≥ 0.
EnteroLargo potenciaEntera(EnteroLargo b, int e);

/// The largest whole number whose k-th power is not above n; n ≥ 0, k ≥ 1. By Newton's method from
/// above. (Source: H. Cohen, A Course in Computational Algebraic Number Theory, 1993, algorithm
/// 1.7.1.)
EnteroLargo raizEntera(const EnteroLargo &n, int k);
