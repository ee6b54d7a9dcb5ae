// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FinDeSesion.h"

#include "shell/start/FormPrincipal.h"

#include <QApplication>
#include <QEvent>
#include <QSessionManager>

using namespace Qt::Literals::StringLiterals;

FinDeSesion::FinDeSesion(FormPrincipal *principal) : m_principal(principal)
{
    qApp->installEventFilter(this);
    // The session may still go on: others can call its end off.
    connect(qApp, &QGuiApplication::commitDataRequest, m_principal,
            &FormPrincipal::guardaLoPendiente, Qt::DirectConnection);
    connect(qApp, &QGuiApplication::saveStateRequest, this, &FinDeSesion::ponOrdenDeArranque,
            Qt::DirectConnection);
    connect(&m_senales, &SenalesDeFin::oida, m_principal, [this] {
        m_principal->terminaSinPreguntar();
        QCoreApplication::quit();
    });
}

/// The session starts the program again as it was started, which is more than Qt would tell it.
/// What the user gave comes last, because the last word decides the language.
void FinDeSesion::ponOrdenDeArranque(QSessionManager &gestor)
{
    QStringList orden = QCoreApplication::arguments();
    orden.insert(1, u"-session"_s);
    orden.insert(2, gestor.sessionId() + u'_' + gestor.sessionKey());
    gestor.setRestartCommand(orden);
    gestor.setRestartHint(QSessionManager::RestartIfRunning);
}

bool FinDeSesion::eventFilter(QObject *objeto, QEvent *suceso)
{
    // It comes from the session, or when the user has closed everything already.
    if (objeto == qApp && suceso->type() == QEvent::Quit)
        m_principal->terminaSinPreguntar();
    return QObject::eventFilter(objeto, suceso);
}
