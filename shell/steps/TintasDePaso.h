// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Lamina.h"

#include <QColor>

/// The colours in which steps and their drawings are painted: those of the theme, or black on white
/// for paper.
struct TintasDePaso
{
    QColor texto;
    QColor atenuado;
    QColor acento;
    QColor acierto;
    QColor fallo;
    bool sobreOscuro = false;

    static TintasDePaso dePantalla();
    static TintasDePaso dePapel();

    QColor de(Tono tono) const;
    /// What can be read on a ground of that colour.
    static QColor sobre(const QColor &fondo);
};
