// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/web/ArchivosDelNavegador.h"

#include "shell/core/system/Archivos.h"

#include <QDir>
#include <QFileDialog>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// More than any sheet, picture or book of exercises has.
constexpr qint64 MayorArchivo = 1 << 26;

} // namespace

ArchivosDelNavegador::ArchivosDelNavegador(const QString &carpeta) : m_carpeta(carpeta)
{
    QDir().mkpath(m_carpeta);
    QObject::connect(&m_ronda, &QTimer::timeout, &m_ronda, [this] { entregaLoEscrito(); });
    // Nobody tells when a file has been written; whoever saves one waits this long for it.
    m_ronda.start(300ms);
}

QString ArchivosDelNavegador::rutaDe(const QString &nombre) const
{
    return m_carpeta + u'/' + QFileInfo(nombre).fileName();
}

QString ArchivosDelNavegador::recibe(const QString &nombre, const QByteArray &contenido)
{
    const QString ruta = rutaDe(nombre);
    escribeArchivo(ruta, contenido);
    m_conocidos[ruta] = QFileInfo(ruta).lastModified();
    return ruta;
}

void ArchivosDelNavegador::entregaLoEscrito()
{
    const QFileInfoList archivos = QDir(m_carpeta).entryInfoList(QDir::Files);
    for (const QFileInfo &archivo : archivos) {
        QDateTime &conocido = m_conocidos[archivo.filePath()];
        if (conocido == archivo.lastModified())
            continue;
        conocido = archivo.lastModified();
        QFileDialog::saveFileContent(leeArchivo(archivo.filePath(), MayorArchivo),
                                     archivo.fileName());
    }
}
