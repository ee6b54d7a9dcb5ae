// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Imagenes.h"

#include "shell/look/Dibujante.h"

#include <QGuiApplication>
#include <QPixmapCache>

using namespace Qt::Literals::StringLiterals;

QIcon Icono(const QString &nombre)
{
    return Dibujante::icono(nombre);
}

QPixmap Imagen(const QString &nombre, int alto, qreal escala)
{
    return QPixmap::fromImage(Dibujante::imagen(nombre, alto, escala));
}

QPixmap ImagenDeArchivo(const QString &ruta, qreal escala, bool oscura)
{
    // Drawing the figures is the better part of opening a page.
    const QString clave = u"%1@%2%3"_s.arg(ruta).arg(escala).arg(oscura ? u" oscura"_s : QString());
    QPixmap imagen;
    if (QPixmapCache::find(clave, &imagen))
        return imagen;
    imagen = QPixmap::fromImage(Dibujante::figura(ruta, escala, oscura));
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
