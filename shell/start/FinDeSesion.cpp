// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FinDeSesion.h"

#include "shell/start/FormPrincipal.h"

#include <QApplication>
#include <QEvent>

FinDeSesion::FinDeSesion(FormPrincipal *principal) : m_principal(principal)
{
    qApp->installEventFilter(this);
    // The session may still go on: others can call its end off.
    connect(qApp, &QGuiApplication::commitDataRequest, m_principal,
            &FormPrincipal::guardaLoPendiente, Qt::DirectConnection);
    connect(&m_senales, &SenalesDeFin::oida, m_principal, [this] {
        m_principal->terminaSinPreguntar();
        QCoreApplication::quit();
    });
}

bool FinDeSesion::eventFilter(QObject *objeto, QEvent *suceso)
{
    // It comes from the session, or when the user has closed everything already.
    if (objeto == qApp && suceso->type() == QEvent::Quit)
        m_principal->terminaSinPreguntar();
    return QObject::eventFilter(objeto, suceso);
}
