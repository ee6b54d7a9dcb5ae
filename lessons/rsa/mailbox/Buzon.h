// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/mailbox/ColMensajes.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The mailbox as a folder: one sub-folder a user, in it the user's public key and the messages to
/// that user. Everything in it may be hostile; see CarpetaCompartida.

/// Puts a message into the recipient's folder under the first free number, and gives its full path.
/// However many send at once, nothing is replaced and nothing is seen half written. Throws
/// ErrorEjecucion when it cannot be written.
QString dejaMensaje(const QString &dirMensajes, const QString &destinatario,
                    const QByteArray &contenido);

/// The bytes of a message file given by its full path. Throws ErrorEjecucion when it cannot be
/// read.
QByteArray leeMensaje(const QString &ruta);

/// The public half of a user's key.
struct ClavePublica
{
    QString q, s;
    bool operator==(const ClavePublica &) const = default;
};

/// The published key of a user; empty numbers when there is none or it cannot be read.
ClavePublica leeClavePublica(const QString &dirMensajes, const QString &usuario);

/// The users who have a sub-folder; nobody when `dirMensajes` is empty. Throws ErrorEjecucion when
/// the mailbox cannot be read.
QStringList usuariosDelBuzon(const QString &dirMensajes);

/// What a scan of the mailbox has met.
struct RevisionDeBuzon
{
    ColMensajes
        mensajes; ///< in the order of folders and numbers; of two with one key the later counts
    int ilegibles = 0; ///< folders and files that could not be read
};

/// Reads sender and subject of every message of the mailbox. Yields once a file, and ends early
/// when the run is stopped. An empty `dirMensajes` gives no messages; one that cannot be read
/// throws ErrorEjecucion.
Tarea<RevisionDeBuzon> revisaBuzon(QString dirMensajes, Billete billete);
