// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"

enum class FormaDePasos { Texto, Markdown, Latex };

/// One step with its number, from 0 on; ends in a line break.
QString pasoComo(FormaDePasos forma, const Paso &paso, qsizetype numero);

/// As a screen reader says it: sentence, formulas, rule, what the drawing shows.
QString pasoComoPalabras(const Paso &paso);
