#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson on units in the gallery.
QList<Escena> escenasUnidades();
