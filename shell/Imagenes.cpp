#include "shell/Imagenes.h"

#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::Literals::StringLiterals;

namespace
{

QString recurso(const QString &nombre)
{
    return u":/imagenes/%1.svg"_s.arg(nombre);
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
    const QSize tamano = (natural * (alto * escala / natural.height())).toSize();
    QPixmap imagen(tamano);
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    dibujo.render(&pintor);
    pintor.end();
    imagen.setDevicePixelRatio(escala);
    return imagen;
}

QCursor Cursor(const QString &nombre, QPoint puntoActivo)
{
    constexpr int alto = 32;
    const QPixmap imagen = Imagen(nombre, alto, 1);
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
