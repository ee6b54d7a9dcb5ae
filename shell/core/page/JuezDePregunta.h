// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Cuestion.h"

/// Judges the answer to a question of a page by the one that the page holds: an expression for a
/// whole number, or "sí", "no", "yes", which are understood in every language. Throws what Evalua
/// throws.
Juicio juzgaPregunta(const QString &esperada, const QString &respuesta);
