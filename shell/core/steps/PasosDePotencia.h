// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

/// A power modulo m by repeated squaring, a step a binary digit of the exponent from the highest
/// on: squared, and multiplied by the base where the digit is 1; at the end the table of all digits
/// where there are not too many. For numbers of any size, exponent ≥ 0, modulus ≥ 1, in decimal
/// digits; each step is computed when it is asked for. (Source: D. E. Knuth, The Art of Computer
/// Programming, vol. 2, 1997, section 4.6.3.)
Pasos pasosDePotencia(const QString &base, const QString &exponente, const QString &modulo);
