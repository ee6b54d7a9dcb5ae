// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/system/CarpetaAbierta.h"

#include <QStringList>

/// A folder that others write in as well, held open: what happens to its path meanwhile changes
/// nothing. Anybody may have written what lies in it, so names are plain names, links are not
/// followed, only ordinary files are opened, and nothing is read beyond a limit. Names are found
/// without regard to case. Failures throw ErrorEjecucion naming the path.
class CarpetaCompartida
{
public:
    /// Opens a folder by its path, which may lead through links.
    explicit CarpetaCompartida(const QString &ruta) : m_carpeta(ruta) {}

    /// Opens one of its sub-folders.
    CarpetaCompartida subcarpeta(const QString &nombre) const;
    /// The same, making it when it is missing, as open to others as this one is.
    CarpetaCompartida subcarpetaCreada(const QString &nombre) const;

    /// The names of its sub-folders that are plain names; links are left out. In the order of the
    /// alphabet without regard to case.
    QStringList subcarpetas() const;

    /// The names of all its entries that are no folders, in no order.
    QStringList entradas() const;

    /// The whole of a file of at most `maximo` bytes.
    QByteArray lee(const QString &nombre, qint64 maximo) const;
    /// The first bytes of a file, at most `maximo`.
    QByteArray leePrincipio(const QString &nombre, qint64 maximo) const;

    /// Writes a file in the place of the one of that name, whole or not at all.
    void sustituye(const QString &nombre, const QByteArray &contenido) const;

private:
    friend class ArchivoProvisional;
    explicit CarpetaCompartida(CarpetaAbierta carpeta) : m_carpeta(std::move(carpeta)) {}

    QString nombreReal(const QString &nombre) const;
    QStringList nombres(bool deCarpetas) const;

    CarpetaAbierta m_carpeta;
};
