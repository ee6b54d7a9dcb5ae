// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/key/ClsRSA.h"

#include <QRect>
#include <QWidget>
#include <memory>

namespace Ui {
class FormClaveRSA;
}

/// The small window that shows the key of the chosen correspondent, above the other windows. The
/// private exponent can be typed: who finds it reads the messages.
class FormClaveRSA : public QWidget
{
    Q_OBJECT

public:
    /// Where the screen has no room it stands over `debajo`, a part of `padre`.
    FormClaveRSA(QWidget *padre, const QWidget *debajo);
    ~FormClaveRSA() override;

    /// Shows the key of a user: q(0), s, and t, which is empty where the student does not know it.
    void ponCorresponsal(const QString &usuario, const ClsRSA &clave);

    /// Shows the window without taking the focus: where the user has put it once, else beside or
    /// below the lesson.
    void muestra();

    /// Where a window of that size covers nothing of the lesson that is being read: at its right,
    /// below it, at its left or above it, whichever is on the screen; else over the lower left
    /// corner of `debajo`.
    static QPoint lugarJunto(const QRect &leccion, const QRect &debajo, const QRect &pantalla,
                             const QSize &tamano);

    QString t() const;

protected:
    void hideEvent(QHideEvent *suceso) override;

Q_SIGNALS:
    /// Whether there is a private exponent to read with.
    void puedeRecibir(bool puede);

private:
    void coloca();
    void TxtDestT_Change();

    std::unique_ptr<Ui::FormClaveRSA> ui;
    const QWidget *m_debajo;
    QRect m_puesta; ///< where it was put before the user could move it
};
