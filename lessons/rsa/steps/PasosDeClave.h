// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/steps/ClaveEnCifras.h"
#include "shell/core/steps/Pasos.h"

/// Why the numbers of a valid key are what they are: q and φ(q) from the primes, t from Euclid's
/// table on s and φ(q), and s·t ≡ 1. Says where two equal primes spoil it. Computed when first
/// looked at. (Source: R. L. Rivest, A. Shamir, L. Adleman, 1978.)
Pasos pasosDeClave(const ClaveEnCifras &clave);

/// Euclid's table on s and φ(q), a division a step; a single step where there would be too many to
/// be looked at.
Pasos pasosDelExponente(const QString &s, const QString &fi, const QString &t);
