#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson in the gallery; `fila` is its row in the menu.
QList<Escena> escenasFibonacci(int fila);
