// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Dibujante.h"

#include "shell/core/page/FiguraOscura.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::Literals::StringLiterals;

namespace {

QString recurso(const QString &nombre)
{
    return u":/imagenes/%1.svg"_s.arg(nombre);
}

/// `tamano` is in device-independent pixels.
QImage pintada(QSvgRenderer &dibujo, QSizeF tamano, qreal escala)
{
    QImage imagen((tamano * escala).toSize(), QImage::Format_ARGB32_Premultiplied);
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    dibujo.render(&pintor);
    pintor.end();
    imagen.setDevicePixelRatio(escala);
    return imagen;
}

} // namespace

QIcon Dibujante::icono(const QString &nombre)
{
    return QIcon(recurso(nombre));
}

QImage Dibujante::imagen(const QString &nombre, int alto, qreal escala)
{
    QSvgRenderer dibujo(recurso(nombre));
    if (!dibujo.isValid())
        return {};
    const QSizeF natural = dibujo.defaultSize();
    return pintada(dibujo, natural * (alto / natural.height()), escala);
}

QImage Dibujante::figura(const QString &ruta, qreal escala, bool oscura)
{
    QFile archivo(ruta);
    const QByteArray svg = archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray();
    QSvgRenderer dibujo;
    if (svg.isEmpty() || !dibujo.load(oscura ? figuraOscura(svg) : svg))
        return {};
    return pintada(dibujo, dibujo.defaultSize(), escala);
}
