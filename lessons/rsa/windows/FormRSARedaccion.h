// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/mailbox/Borradores.h"
#include "shell/core/CopiaDeTrabajo.h"

#include <QObject>

class FormRSATexto;
class QLineEdit;

/// Subject and text of the message that is read or written. What the student has written there and
/// not sent is kept as a draft of its recipient when something else takes its place, and against
/// every end of the program; it is there again when that recipient is named, until it is sent or
/// emptied.
class FormRSARedaccion : public QObject
{
    Q_OBJECT

public:
    /// The fields belong to the window and outlive this, which keeps its drafts in `carpeta`.
    FormRSARedaccion(QLineEdit *asunto, FormRSATexto *texto, const QString &carpeta,
                     QObject *padre);

    /// Takes up the drafts of an earlier session, and shows the one that has no recipient. Throws
    /// ErrorEjecucion when they cannot be read.
    void recupera();

    /// Shows a message of the mailbox, to that recipient.
    void muestraMensaje(const QString &destinatario, const QString &asunto, const QString &texto);
    /// The recipient is named: the last draft for them is shown; where there is none, what stands
    /// in the fields stays, and the result is false.
    bool dirige(const QString &destinatario);
    /// A message has gone; its draft goes as well.
    void enviado(const QString &asunto, const QString &texto);

    QString asunto() const;
    QString texto() const;
    /// Who has drafts, but for the recipient of what is in the fields.
    QStringList pendientes();

Q_SIGNALS:
    /// What stands in the fields has changed.
    void cambiada();
    /// What the student is to know about the drafts, a sentence.
    void avisa(const QString &texto);

private:
    void pon(const QString &asunto, const QString &texto);
    void alCambiar();
    void recoge();

    QLineEdit *m_asunto;
    FormRSATexto *m_texto;
    QString m_destinatario;
    Borradores m_borradores;
    int m_numero = 0;       ///< the draft that stands in the fields
    bool m_escrito = false; ///< the fields have changed since something was shown in them
    bool m_mostrando = false;
    CopiaDeTrabajo m_copia;
};
