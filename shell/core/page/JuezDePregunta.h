// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Cuestion.h"

/// The judge of a question of a page, made of the answer that the page holds: an expression for a
/// whole number, or "sí", "no", "yes", which are understood in every language. No judge for an
/// answer that is neither.
Juez juezDePregunta(const QString &esperada);
