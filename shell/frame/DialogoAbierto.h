// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Espera.h"

#include <QDialog>
#include <QPointer>

/// A dialog that a task has opened over all windows and awaits. It goes when the task does, or with
/// its parent.
class DialogoAbierto
{
public:
    /// Shows the dialog, which belongs to this object from now on.
    explicit DialogoAbierto(QDialog *dialogo);
    DialogoAbierto(const DialogoAbierto &) = delete;
    DialogoAbierto &operator=(const DialogoAbierto &) = delete;
    ~DialogoAbierto();

    /// Until the user has answered or the dialog has gone.
    Espera &respondido() { return m_respondido; }

    /// Of `QDialog::done`; Rejected when it went away without an answer.
    int resultado() const { return m_dialogo ? m_resultado : int(QDialog::Rejected); }

private:
    void devuelveElTeclado();

    QPointer<QDialog> m_dialogo;
    QPointer<QWidget> m_antes;
    Espera m_respondido;
    int m_resultado = QDialog::Rejected;
};
