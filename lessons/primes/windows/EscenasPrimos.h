#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the primes lesson in the gallery; `fila` is its row in the menu.
QList<Escena> escenasPrimos(int fila);
