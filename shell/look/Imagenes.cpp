// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Imagenes.h"

#include "shell/look/Dibujante.h"

#include <QGuiApplication>
#include <QHash>
#include <QPixmapCache>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The picture of that key, drawn by `dibuja` where it has not been drawn lately: lists and buttons
/// ask for theirs each time they are painted.
template <typename Dibuja>
QPixmap guardada(const QString &clave, Dibuja dibuja)
{
    QPixmap imagen;
    if (QPixmapCache::find(clave, &imagen))
        return imagen;
    imagen = QPixmap::fromImage(dibuja());
    QPixmapCache::insert(clave, imagen);
    return imagen;
}

} // namespace

QIcon Icono(const QString &nombre)
{
    static QHash<QString, QIcon> iconos;
    if (iconos.isEmpty())
        qAddPostRoutine([] { iconos.clear(); }); // pixmaps do not outlive the application
    const auto hallado = iconos.constFind(nombre);
    return hallado != iconos.cend() ? *hallado : *iconos.insert(nombre, Dibujante::icono(nombre));
}

QPixmap Imagen(const QString &nombre, int alto, qreal escala)
{
    return guardada(u"%1@%2@%3"_s.arg(nombre).arg(alto).arg(escala),
                    [&] { return Dibujante::imagen(nombre, alto, escala); });
}

QPixmap ImagenDeArchivo(const QString &ruta, qreal escala, bool oscura)
{
    // Drawing the figures is the better part of opening a page.
    return guardada(u"%1@%2%3"_s.arg(ruta).arg(escala).arg(oscura ? u" oscura"_s : QString()),
                    [&] { return Dibujante::figura(ruta, escala, oscura); });
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
