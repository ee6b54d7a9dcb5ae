#pragma once

#include "shell/frame/Leccion.h"

/// The lessons of the program, in the order of the menu, and the scenes of its gallery. A lesson
/// without a factory has its row disabled.
Contenido contenidoDelPrograma();
