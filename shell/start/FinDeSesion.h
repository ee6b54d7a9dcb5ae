// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/system/SenalesDeFin.h"

#include <QObject>

class FormPrincipal;
class QSessionManager;

/// The ends of the program that are not the user's: the desktop's session ends, or the system asks
/// the program to go. Unsaved work is kept, and the windows close as by the user's hand but for the
/// questions, which nobody would answer.
class FinDeSesion : public QObject
{
public:
    explicit FinDeSesion(FormPrincipal *principal);

protected:
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    static void ponOrdenDeArranque(QSessionManager &gestor);

    FormPrincipal *m_principal;
    SenalesDeFin m_senales;
};
