// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/fibonacci/CalculoFibonacci.h"
#include "shell/core/steps/Pasos.h"

/// Why a method gives F(n): the additions one by one, by the definition with the calls that they
/// cost; or the doublings that the binary digits of n ask for, with their table. n from 0 to the
/// bound of the method.
Pasos pasosDeFibonacci(MetodoFibonacci metodo, int n);

/// How the quotients F(n+1)/F(n) close in on the golden ratio, from n = 1 to `hasta`.
Pasos pasosDeCocientes(int hasta);
