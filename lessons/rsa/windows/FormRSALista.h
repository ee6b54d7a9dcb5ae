// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/mailbox/ColMensajes.h"
#include "lessons/rsa/windows/TablaDeTextos.h"

#include <QObject>

class Rejilla;

/// The list of the messages of the mailbox, of which one can be chosen: by a click, by a key that
/// leads to its row, or by Enter. A focus that arrives in the list makes a row current and chooses
/// none.
class FormRSALista : public QObject
{
    Q_OBJECT

public:
    FormRSALista(Rejilla *rejilla, QObject *padre);

    /// Shows the messages, with that one chosen which has the key `elegido`; whether there is one.
    bool pon(const ColMensajes &mensajes, const QString &elegido);

    /// What stands in the list while it is empty.
    void ponTextoVacio(const QString &texto);

    /// The key of the chosen message; empty when none is.
    QString claveElegida() const;

Q_SIGNALS:
    /// A message was chosen, anew or again.
    void elegida();
    /// It is to be read as well.
    void activada();

private:
    QString claveDeFila(qsizetype fila) const;

    Rejilla *m_rejilla;
    TablaDeTextos m_tabla;
};
