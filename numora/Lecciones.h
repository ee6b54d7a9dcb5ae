// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Leccion.h"

/// The lessons of the program, in the order of the menu, and its spreadsheet. A lesson without a
/// factory has its row disabled.
Contenido contenidoDelPrograma();
