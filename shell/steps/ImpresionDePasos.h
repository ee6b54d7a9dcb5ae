// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

class QPrinter;

/// Prints steps one below the other under a title, each drawing under its step. False when the
/// printer cannot be written to. No more than 500 of them.
bool imprimePasos(QPrinter &impresora, const Pasos &pasos, const QString &titulo);
