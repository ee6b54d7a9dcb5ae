#include "shell/Imagenes.h"

#include <QGuiApplication>
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

QImage ImagenDeArchivo(const QString &ruta, qreal escala)
{
    QSvgRenderer dibujo(ruta);
    return dibujo.isValid() ? pintada(dibujo, dibujo.defaultSize(), escala) : QImage();
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
