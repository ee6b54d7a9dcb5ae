// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

/// What a message file holds: a line with the sender, one with the subject, then a line a block.
struct ContenidoMensaje
{
    QString remitente;
    QString asunto;
    QStringList bloques;
};

namespace ArchivoMensaje {

/// The longest file that is written or read, in bytes, and the most blocks in it: 100 000
/// characters for a key of 2000 bits.
inline constexpr qint64 MaximoDeBytes = qint64{64} * 1024 * 1024;
inline constexpr qsizetype MaximoDeBloques = 1'000'000;

/// The first two lines of a message take no more bytes than this.
inline constexpr qint64 MaximoDeCabecera = 4096;

/// The bytes of a file: Windows-1252, lines ended by CR LF, the subject without blanks at its ends.
/// Throws ArgumentoNoValido for a line break in a line or a character outside Windows-1252, and
/// ErrorDeArchivo for what is longer than may be read. Yields once a block; of use only if the run
/// was not stopped.
Tarea<QByteArray> compone(ContenidoMensaje contenido, Billete billete);

/// Reads such a file, with CR LF or LF as line ends; UTF-8 after a byte-order mark. Throws
/// ErrorDeArchivo when there are too many bytes or blocks. Yields once a block and has fewer when
/// the run was stopped.
Tarea<ContenidoMensaje> interpreta(QByteArray bytes, Billete billete);

/// Sender and subject, from the first MaximoDeCabecera bytes of a file; nothing when they do not
/// end within them, so that this is no message, or when there is no second line, because the file
/// has not arrived yet.
std::optional<ContenidoMensaje> interpretaCabecera(const QByteArray &principio);

} // namespace ArchivoMensaje
