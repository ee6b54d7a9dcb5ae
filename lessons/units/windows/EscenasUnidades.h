#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson on units in the gallery; `fila` is its row in the menu.
QList<Escena> escenasUnidades(int fila);
