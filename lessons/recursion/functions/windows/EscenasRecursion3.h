#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson on recursive functions in the gallery; `fila` is its row in the menu.
QList<Escena> escenasRecursion3(int fila);
