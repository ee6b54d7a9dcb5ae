// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Archivos.h"

#include "shell/core/system/Disco.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

ErrorEjecucion errorDeArchivo(const QFileDevice &archivo, const QString &ruta)
{
    const QFileInfo info(ruta);
    ErrorEjecucion::Numero numero = ErrorEjecucion::ErrorDeArchivo;
    if (archivo.error() == QFileDevice::ResourceError)
        numero = ErrorEjecucion::DiscoLleno;
    else if (!info.absoluteDir().exists())
        numero = ErrorEjecucion::RutaNoEncontrada;
    else if (archivo.error() == QFileDevice::PermissionsError ||
             !QFileInfo(info.absolutePath()).isWritable())
        numero = ErrorEjecucion::PermisoDenegado;
    QString detalle = QDir::toNativeSeparators(ruta);
    // In the system's language, which need not be that of the interface: only where nothing else
    // tells.
    if (numero == ErrorEjecucion::ErrorDeArchivo)
        detalle += u'\n' + archivo.errorString();
    return ErrorEjecucion(numero, detalle);
}

void escribeArchivo(const QString &ruta, const QByteArray &contenido, bool privado)
{
    QSaveFile archivo(ruta);
    if (!archivo.open(QIODevice::WriteOnly))
        throw errorDeArchivo(archivo, ruta);
    if (privado && !soloParaSuDuena(archivo))
        throw errorDeArchivo(archivo, ruta);
    // QSaveFile replaces the old file even if its own buffer could not be written.
    if (archivo.write(contenido) != contenido.size() || !llegaAlDisco(archivo) || !archivo.commit())
        throw errorDeArchivo(archivo, ruta);
}

QByteArray leeArchivo(const QString &ruta, qint64 maximo)
{
    const QFileInfo info(ruta);
    const QString nombre = QDir::toNativeSeparators(ruta);
    if (!info.exists())
        throw ErrorEjecucion(ErrorEjecucion::ArchivoNoEncontrado, nombre);
    if (!info.isReadable())
        throw ErrorEjecucion(ErrorEjecucion::PermisoDenegado, nombre);
    if (!info.isFile())
        throw ErrorEjecucion(ErrorEjecucion::ErrorDeArchivo, nombre);
    QFile archivo(ruta);
    if (!archivo.open(QIODevice::ReadOnly))
        throw errorDeArchivo(archivo, ruta);
    const QByteArray bytes = archivo.read(maximo + 1);
    if (archivo.error() != QFileDevice::NoError)
        throw errorDeArchivo(archivo, ruta);
    if (bytes.size() > maximo)
        throw ErrorEjecucion(ErrorEjecucion::ErrorDeArchivo, nombre);
    return bytes;
}

void barreRestos(const QString &carpeta, const QString &patron)
{
    const QDateTime haceUnDia = QDateTime::currentDateTime().addDays(-1);
    const auto restos =
        QDir(carpeta).entryInfoList({patron}, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &resto : restos) {
        if (resto.lastModified() < haceUnDia)
            QFile::remove(resto.filePath());
    }
}
