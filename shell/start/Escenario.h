// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Leccion.h"

class FormLeccion;

/// Does in a lesson what a step of a scene says. A control that is not there is a warning.
void daGesto(const Gesto &gesto, const QWidget &ventana);

/// Whether a run of the lesson is on.
bool hayCorridas(const FormLeccion &leccion);
