#pragma once

#include "shell/frame/Leccion.h"

/// The pictures of the primes lesson in the gallery.
QList<Escena> escenasPrimos();
