#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson on modular recurrences in the gallery; `fila` is its row in the menu.
QList<Escena> escenasRecursion2(int fila);

/// The same for the lesson on recursive functions.
QList<Escena> escenasRecursion3(int fila);
