// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson in the gallery.
QList<Escena> escenasRecursion1();
