#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the lesson on the Chinese remainder theorem in the gallery.
QList<Escena> escenasTCR();
