// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/system/CarpetaCompartida.h"

/// A file that is written whole under a name that nobody looks for, and goes away again unless it
/// is given a name of its own. Failures throw ErrorEjecucion naming the path.
class ArchivoProvisional
{
public:
    /// As open to readers as the folder is, whatever the account's mask.
    ArchivoProvisional(const CarpetaCompartida &carpeta, const QByteArray &contenido);
    ~ArchivoProvisional();
    ArchivoProvisional(const ArchivoProvisional &) = delete;
    ArchivoProvisional &operator=(const ArchivoProvisional &) = delete;

    /// Gives the finished file its name; false when the name is taken, which is never replaced.
    bool nombraSiLibre(const QString &nombre);
    /// Gives it a name whether taken or not.
    void nombra(const QString &nombre);

    /// Removes those of the folder's entries that programs which were killed have left behind: the
    /// ones that are at least a day older than this one, by the clock of the folder.
    void quitaAbandonados(const QStringList &entradas) const;

private:
    CarpetaAbierta m_carpeta;
    QString m_provisional;
    qint64 m_hecho; ///< when it was written, in seconds of the folder's clock
};
