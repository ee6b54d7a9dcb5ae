// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/DialogoAbierto.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>

DialogoAbierto::DialogoAbierto(QDialog *dialogo)
    : m_dialogo(dialogo), m_antes(QApplication::focusWidget())
{
    // Over a window that is at work, the box is not.
    m_dialogo->setCursor(Qt::ArrowCursor);
    m_dialogo->setWindowModality(Qt::ApplicationModal);
    QObject::connect(dialogo, &QDialog::finished, m_respondido.contexto(), [this](int resultado) {
        m_resultado = resultado;
        m_respondido.cumple();
    });
    QObject::connect(dialogo, &QObject::destroyed, m_respondido.contexto(),
                     [this] { m_respondido.cumple(); });
    m_dialogo->show();
    // One that the system shows by itself has come and gone, or could not come.
    if (!m_dialogo || !m_dialogo->isVisible())
        m_respondido.cumple();
}

DialogoAbierto::~DialogoAbierto()
{
    if (!m_dialogo)
        return;
    m_dialogo->hide();
    m_dialogo->deleteLater();
    devuelveElTeclado();
}

/// Qt takes no notice of the window that the desktop makes active while a list of completions is
/// still open, as it is when a file dialog is accepted by Enter. Keys arrive afterwards, but no
/// window is active as far as Qt knows: no mnemonic works and no focus is drawn.
void DialogoAbierto::devuelveElTeclado()
{
    QTimer::singleShot(0, qApp, [antes = m_antes] {
        if (!antes || QApplication::activeWindow() || QApplication::activePopupWidget())
            return;
        QWidget *ventana = antes->window();
        if (ventana->windowHandle() == QGuiApplication::focusWindow())
            QApplication::setActiveWindow(ventana);
    });
}
