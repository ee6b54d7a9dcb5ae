// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Descomposicion.h"
#include "bignum/gateway/FactoresHallados.h"
#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

/// Calls of libbignum that may last minutes. Where the program has the machine to itself they are
/// made at once, and nothing else goes on meanwhile. A browser would take the page for dead: there
/// they run in a worker, which is ended when the run is stopped or its task goes.
namespace Aparte {

/// Whether the window answers while such a call lasts.
bool responde();

/// As BuscaFactores. A stopped run gives what was found by then, and `Detenido`.
Tarea<FinDeFactores> buscaFactores(QString n, RecibeFactor recibe, Billete billete);

// As Descompone and the functions of ModBignum; what a stopped run gives means nothing.
Tarea<Descomposicion> descompone(QString n, Billete billete);
Tarea<QString> fiEuler(QString n, Billete billete);
Tarea<bool> esPrimo(QString n, Billete billete);
Tarea<QString> primoSiguiente(QString n, Billete billete);
Tarea<QString> primoAleatorio(std::int16_t bits, Billete billete);

} // namespace Aparte
