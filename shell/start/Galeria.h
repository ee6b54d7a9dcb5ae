// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Traduccion.h"
#include "shell/frame/Leccion.h"

#include <QSize>
#include <QString>

struct OpcionesDeGaleria
{
    QString carpeta; ///< where the PNG files go; made when missing
    QSize tamano{1366, 768};
    bool oscuro = false;
    QString idioma = IdiomaPropio.toString();
};

/// Takes a picture of every window in every state that the scenes name, asking nothing and changing
/// no setting. Gives what a program returns: 0, or 1 with a message on the standard error stream.
int Galeria(const Contenido &contenido, const OpcionesDeGaleria &opciones);
