// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/Celda.h"

#include <QWidget>

class FormCalcCampo;
class QLabel;

/// The line above the grid: the name of the current cell and its whole expression, which can be
/// edited there as well as in the cell.
class FormCalcExpresion : public QWidget
{
    Q_OBJECT

public:
    explicit FormCalcExpresion(QWidget *padre);

    /// Shows a cell; a header has neither name nor expression, and cannot be edited.
    void muestra(Celda celda, const QString &expresion);

    /// Takes what is being typed into the cell, as Enter would without moving on.
    void termina();

Q_SIGNALS:
    /// An edit has ended with that text. `conIntro`: by Enter, after which the keys go to the grid.
    void editada(Celda celda, const QString &expresion, bool conIntro);
    /// Escape: the cell is to be shown as it is, and the keys go to the grid.
    void abandonada();

protected:
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void acepta(bool conIntro);

    Celda m_celda;
    QLabel *m_lblCelda;
    FormCalcCampo *m_txtExpresion;
};
