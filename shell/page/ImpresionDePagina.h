// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Tarea.h"

class NavegadorPagina;

/// Prints the page of a browser as it is unfolded, on the printer that the user chooses.
Tarea<> imprimePagina(NavegadorPagina *pagina);
