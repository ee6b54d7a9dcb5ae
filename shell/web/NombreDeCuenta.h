// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Keeps the name that `nombreDeCuenta` gives from now on; at most 255 bytes. Throws ErrorEjecucion
/// where it cannot be written.
void ponNombreDeCuenta(const QString &nombre);
