// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

/// Numbers of more bits are told about in words: their powers take too long.
inline constexpr int MasBitsDePasos = 2048;

/// Why a number is prime or not: its bits; its small divisors; n − 1 = 2^s · d and the squares of a
/// base, the witness marked; for a prime its certificate, or what stands for it beyond
/// CertificadoPratt::MasBits. `numero` is what the student typed, `primo` the verdict; an empty
/// base stands for the first prime that decides. A base that is given is from 2 to n − 2.
Pasos pasosDeTest(const QString &numero, bool primo, const QString &base = {});

/// The digits of a natural number without blanks around, a plus sign and zeros in front; empty for
/// another text.
QString naturalEscrito(const QString &texto);
