// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The folder for what the program keeps for its user beside the settings; it need not exist yet.
QString carpetaDeDatos();

/// Another one, remembered in the settings: for a gallery or a test, which are to leave no trace.
void ponCarpetaDeDatos(const QString &carpeta);
