#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the spreadsheet in the gallery; `fila` is its row for the main window.
QList<Escena> escenasMiniCal(int fila);
