// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/ModGlobal.h"
#include "shell/core/system/Archivos.h"
#include "tests/shell/support/Entorno.h"

#include <QDir>
#include <QTemporaryDir>

/// A student at the program: a working folder and a mailbox of their own, both empty.
class Estudiante
{
public:
    Estudiante()
    {
        QDir(m_carpeta.path()).mkpath(QStringLiteral("trabajo"));
        QDir(m_carpeta.path()).mkpath(QStringLiteral("buzon"));
        Sesión().ponCarpeta(m_carpeta.filePath(QStringLiteral("trabajo")));
    }

    QString buzon() const { return m_carpeta.filePath(QStringLiteral("buzon")); }
    QString usuario() const { return Sesión().UserName(); }
    QString ficheroPrivado() const
    {
        return m_carpeta.filePath(QStringLiteral("trabajo/") + usuario() + QStringLiteral(".RSA"));
    }
    QString enBuzon(const QString &nombre) const { return buzon() + u'/' + nombre; }

    /// Writes a file of the mailbox, making its folder; without the care that costs time.
    void escribe(const QString &nombre, const QByteArray &bytes) const
    {
        QDir().mkpath(QFileInfo(enBuzon(nombre)).absolutePath());
        QFile archivo(enBuzon(nombre));
        if (!archivo.open(QIODevice::WriteOnly) || archivo.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(nombre));
    }
    static QByteArray lee(const QString &ruta) { return leeArchivo(ruta, 100'000'000); }

private:
    QTemporaryDir m_carpeta;
};

/// The number of the run-time error that `accion` ends in; 0 when it ends well.
template <typename Accion>
int numeroDeError(Accion accion)
{
    try {
        accion();
    } catch (const ErrorEjecucion &error) {
        return error.numero();
    }
    return 0;
}
