// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the practice window for the gallery.
QList<Escena> escenasPracticas();
