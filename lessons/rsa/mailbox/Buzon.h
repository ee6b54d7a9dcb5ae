#pragma once

#include "shell/core/Corrida.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class ColMensajes;

/// The mailbox as a folder: one sub-folder a user, in it the user's public key and the messages to
/// that user. Everything in it may be hostile; see CarpetaBuzon.

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

/// Fills the collection with the messages of the mailbox, in the order of folders and numbers; of
/// two with one key the later counts. Yields once a file, and ends early when the run is stopped.
/// Gives the number of folders and files that could not be read. An empty `dirMensajes` gives no
/// messages; one that cannot be read throws ErrorEjecucion.
int revisaBuzon(const QString &dirMensajes, ColMensajes &mensajes, Corrida &corrida);
