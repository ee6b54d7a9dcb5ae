// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Messages and public keys of a mailbox as single files, which one student sends to another by
// whatever way.

inline constexpr qint64 MayorIntercambiable = 1 << 26;

/// What can be given away: "ana/Clave.RSA", "ana/RSA1.msg"; by users, keys first. Throws
/// ErrorEjecucion when the mailbox cannot be read.
QStringList intercambiables(const QString &buzon);

/// The bytes of one of them. Throws ErrorEjecucion.
QByteArray leeIntercambiable(const QString &buzon, const QString &cual);

/// The name under which it leaves: "ana-RSA1.msg".
QString nombreDeBajada(const QString &cual);

/// The user in such a name, also where a browser has numbered it ("ana-RSA1 (2).msg"); empty in any
/// other.
QString usuarioDeBajada(const QString &archivo);

/// Puts a message or a public key into the folder of a user and gives its place as in
/// `intercambiables`; empty for bytes that are neither, a private key among them. Throws
/// ErrorEjecucion for a name that no folder can have, and when it cannot be written.
QString recibeIntercambiable(const QString &buzon, const QString &usuario,
                             const QByteArray &contenido);
