#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the RSA lesson in the gallery; `fila` is its row in the menu.
QList<Escena> escenasRSA(int fila);
