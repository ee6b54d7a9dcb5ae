// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QWidget>

class BotonDeCorrida;
class FormCalcRejilla;
class HojaDeCalculo;

/// Copies cells to the clipboard and pastes from it. As a widget it is the line below the grid, in
/// sight while a long paste goes on, with the button that stops it.
class FormCalcPortapapeles : public QWidget
{
    Q_OBJECT

public:
    FormCalcPortapapeles(HojaDeCalculo &hoja, FormCalcRejilla &rejilla, QWidget *padre);

    /// The expressions or the results of the selected cells.
    void copia(bool expresiones);

    /// Enters what the clipboard holds from the selected cells on. Nothing during another paste.
    Tarea<> pega(Billete billete);

Q_SIGNALS:
    /// A paste has begun, or come to its end in whatever way.
    void pegando(bool enMarcha);
    /// Cells have been entered.
    void pegada();

private:
    HojaDeCalculo &m_hoja;
    FormCalcRejilla &m_rejilla;
    BotonDeCorrida *m_cmdDetener;
};
