// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/Dibujo.h"

#include "shell/access/Papel.h"
#include "shell/look/Imagenes.h"

#include <QPainter>

Dibujo::Dibujo(QWidget *padre) : QWidget(padre)
{
    ponPapel(this, QAccessible::Graphic);
}

void Dibujo::setImagen(const QString &nombre)
{
    m_imagen = nombre;
    update();
}

QSize Dibujo::sizeHint() const
{
    const int lado = fontMetrics().height() * 8;
    return {lado, lado};
}

QSize Dibujo::minimumSizeHint() const
{
    return sizeHint() / 3;
}

void Dibujo::paintEvent(QPaintEvent *)
{
    const qreal escala = devicePixelRatioF();
    QPixmap imagen = Imagen(m_imagen, height(), escala);
    if (imagen.isNull())
        return;
    const QSizeF natural = imagen.deviceIndependentSize();
    if (natural.width() > width())
        imagen = Imagen(m_imagen, static_cast<int>(height() * width() / natural.width()), escala);
    QRectF destino(QPointF(), imagen.deviceIndependentSize());
    destino.moveCenter(QRectF(rect()).center());
    QPainter(this).drawPixmap(destino.topLeft(), imagen);
}
