// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/CopiaDeTrabajo.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/system/Archivos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalBlocker>
#include <new>
#include <utility>

using namespace Qt::Literals::StringLiterals;

CopiaDeTrabajo::CopiaDeTrabajo(const QString &carpeta, const QString &nombre,
                               std::function<QByteArray()> contenido, QObject *padre)
    : QObject(padre), m_ruta(carpeta + u'/' + nombre), m_contenido(std::move(contenido))
{
    m_espera.setSingleShot(true);
    m_espera.setInterval(Plazo);
    connect(&m_espera, &QTimer::timeout, this, &CopiaDeTrabajo::guardaCallando);
    // What a program killed in the midst of writing has left; no other writes here now.
    const QStringList restos = QDir(carpeta).entryList({nombre + u".*"_s}, QDir::Files);
    for (const QString &resto : restos)
        QFile::remove(carpeta + u'/' + resto);
}

CopiaDeTrabajo::~CopiaDeTrabajo()
{
    // Nobody is left to be told of a failure.
    const QSignalBlocker callada(this);
    if (m_espera.isActive())
        guardaCallando();
}

QByteArray CopiaDeTrabajo::guardada() const
{
    return QFile::exists(m_ruta) ? leeArchivo(m_ruta, MaximoDeBytes) : QByteArray();
}

void CopiaDeTrabajo::cambia()
{
    // Not put off by further changes: who writes without a pause is to lose no more than others.
    if (!m_espera.isActive())
        m_espera.start();
}

void CopiaDeTrabajo::guarda()
{
    m_espera.stop();
    escribe(m_contenido());
    m_haFallado = false;
}

void CopiaDeTrabajo::escribe(const QByteArray &contenido)
{
    QFile archivo(m_ruta);
    if (contenido.isEmpty()) {
        if (archivo.exists() && !archivo.remove())
            throw errorDeArchivo(archivo, m_ruta);
        return;
    }
    if (contenido.size() > MaximoDeBytes)
        throw ErrorEjecucion(ErrorEjecucion::MemoriaInsuficiente, m_ruta);
    QDir().mkpath(QFileInfo(m_ruta).absolutePath());
    escribeArchivo(m_ruta, contenido, /*privado*/ true);
}

void CopiaDeTrabajo::guardaCallando()
{
    const auto falla = [this](const ErrorEjecucion &motivo) {
        if (!std::exchange(m_haFallado, true))
            Q_EMIT fallida(motivo);
    };
    try {
        guarda();
    } catch (const ErrorEjecucion &motivo) {
        falla(motivo);
    } catch (const std::bad_alloc &) {
        falla(ErrorEjecucion(ErrorEjecucion::MemoriaInsuficiente, m_ruta));
    }
}
