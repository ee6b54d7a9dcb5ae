// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Imagenes.h"

#include "shell/core/page/FiguraOscura.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
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

QIcon Icono(const QString &nombre)
{
    return QIcon(recurso(nombre));
}

QPixmap Imagen(const QString &nombre, int alto, qreal escala)
{
    QSvgRenderer dibujo(recurso(nombre));
    if (!dibujo.isValid())
        return {};
    const QSizeF natural = dibujo.defaultSize();
    return QPixmap::fromImage(pintada(dibujo, natural * (alto / natural.height()), escala));
}

QPixmap ImagenDeArchivo(const QString &ruta, qreal escala, bool oscura)
{
    // Drawing the figures is the better part of opening a page.
    const QString clave = u"%1@%2%3"_s.arg(ruta).arg(escala).arg(oscura ? u" oscura"_s : QString());
    QPixmap imagen;
    if (QPixmapCache::find(clave, &imagen))
        return imagen;
    QFile archivo(ruta);
    const QByteArray svg = archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray();
    QSvgRenderer dibujo;
    if (!svg.isEmpty() && dibujo.load(oscura ? figuraOscura(svg) : svg))
        imagen = QPixmap::fromImage(pintada(dibujo, dibujo.defaultSize(), escala));
    QPixmapCache::insert(clave, imagen);
    return imagen;
}

QCursor Cursor(const QString &nombre, QPoint puntoActivo)
{
    constexpr int alto = 32;
    const QPixmap imagen = Imagen(nombre, alto, qApp->devicePixelRatio());
    return imagen.isNull() ? QCursor(Qt::PointingHandCursor)
                           : QCursor(imagen, puntoActivo.x(), puntoActivo.y());
}

QIcon &ImgSiguiente()
{
    static QIcon imagen;
    return imagen;
}

QIcon &ImgStop()
{
    static QIcon imagen;
    return imagen;
}
