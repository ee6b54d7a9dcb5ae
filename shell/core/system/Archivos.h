// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/ErrorEjecucion.h"

#include <QByteArray>
#include <QFileDevice>
#include <QString>

/// Writes a file whole or not at all: what stood there before stays until everything is on disk.
/// `privado`: readable and writable by its owner alone, from the first byte on. Throws
/// ErrorEjecucion (permission, path, disk) naming the file.
void escribeArchivo(const QString &ruta, const QByteArray &contenido, bool privado = false);

/// Reads at most `maximo` bytes of an ordinary file; a longer one, or one that is not an ordinary
/// file (a pipe, a device), throws ErrorDeArchivo, a missing one ArchivoNoEncontrado, a forbidden
/// one PermisoDenegado.
QByteArray leeArchivo(const QString &ruta, qint64 maximo);

/// Takes away what programs killed in the midst of writing have left in a folder: the ordinary
/// files whose names have the form of `patron` ("*" for any characters) and that nobody has written
/// to for a day. What cannot be taken away stays.
void barreRestos(const QString &carpeta, const QString &patron);

/// The error that a file operation ended in, with the file's name as its detail.
ErrorEjecucion errorDeArchivo(const QFileDevice &archivo, const QString &ruta);
