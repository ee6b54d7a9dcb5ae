// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the spreadsheet in the gallery.
QList<Escena> escenasMiniCal();
