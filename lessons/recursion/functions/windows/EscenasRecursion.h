#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson on modular recurrences in the gallery.
QList<Escena> escenasRecursion2();

/// The same for the lesson on recursive functions.
QList<Escena> escenasRecursion3();
