#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson on Euclid's algorithm in the gallery; `fila` is its row in the menu.
QList<Escena> escenasEuclides(int fila);
