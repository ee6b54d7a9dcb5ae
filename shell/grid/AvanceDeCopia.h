// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/BotonDeCorrida.h"

#include <QFrame>
#include <QTimer>

class QProgressBar;

/// Stands over the foot of a grid while its cells are copied, once that takes longer than a moment:
/// how far the copy is, and the button that stops it, which Escape presses as well.
class AvanceDeCopia : public QFrame
{
    Q_OBJECT

public:
    explicit AvanceDeCopia(QWidget *rejilla);

    /// Begins to show a run over so many rows. It ends with what this gives.
    BotonDeCorrida::Marcha empieza(int filas, Billete billete);

    void ponHechas(int filas) { m_hechas = filas; }

private:
    void muestra();

    QProgressBar *m_barra;
    BotonDeCorrida *m_corrida;
    QTimer m_timer;
    int m_hechas = 0;
};
