// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Rutas.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The entry of `carpeta` called `nombre` but for case; `nombre` itself when there is none.
QString entradaSinCaja(const QString &carpeta, const QString &nombre)
{
    const auto filtros = QDir::AllEntries | QDir::Hidden | QDir::System;
    const QStringList entradas = QDir(carpeta).entryList(filtros);
    for (const QString &entrada : entradas) {
        if (entrada.compare(nombre, Qt::CaseInsensitive) == 0)
            return entrada;
    }
    return nombre;
}

/// Names that Windows keeps for devices, with whatever extension.
bool esDispositivo(const QString &nombre)
{
    static const QRegularExpression reservado(
        u"^(con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[0-9\u00B9\u00B2\u00B3]) *(\\.|$)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return reservado.match(nombre).hasMatch();
}

} // namespace

QString rutaDePlataforma(const QString &ruta)
{
    return QString(ruta).replace(u'\\', u'/');
}

QString rutaExistente(const QString &ruta)
{
    const QString limpia = rutaDePlataforma(ruta);
    if (limpia.isEmpty() || QFileInfo::exists(limpia))
        return limpia;
    QString camino = limpia.startsWith(u'/') ? u"/"_s : QString();
    for (const QString &parte : limpia.split(u'/', Qt::SkipEmptyParts)) {
        const QString base = camino.isEmpty() ? u"."_s : camino;
        const QString tal_cual = camino + parte;
        camino = QFileInfo::exists(tal_cual) ? tal_cual : camino + entradaSinCaja(base, parte);
        camino += u'/';
    }
    if (!limpia.endsWith(u'/'))
        camino.chop(1);
    return camino;
}

bool esNombreSimple(const QString &nombre)
{
    static constexpr QStringView prohibidos = u"/\\:";
    if (nombre.isEmpty() || nombre.endsWith(u'.') || nombre.endsWith(u' ') ||
        nombre.contains(QChar(u'\0')) || esDispositivo(nombre))
        return false;
    return std::none_of(nombre.begin(), nombre.end(),
                        [](QChar c) { return prohibidos.contains(c); });
}
