#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson on the Chinese remainder theorem in the gallery; `fila` is its row in
/// the menu.
QList<Escena> escenasTCR(int fila);
