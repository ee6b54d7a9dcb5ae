// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Leccion.h"

/// Gives each lesson the word by which links of the pages name it, and the topics and fields that
/// they may reach: the one place that decides about that.
void ponTemasDePaginas(Contenido &contenido);
