#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson in the gallery.
QList<Escena> escenasRecursion1();
