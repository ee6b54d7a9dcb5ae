// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/plot/Encuadre.h"

#include <algorithm>
#include <cmath>

void Encuadre::ponLimites(const QRectF &limites)
{
    m_limites = limites;
    m_limites.setWidth(std::max(limites.width(), 1.0));
    m_limites.setHeight(std::max(limites.height(), 1.0));
    muestraTodo();
}

QPointF Encuadre::aPixel(QPointF mundo) const
{
    const qreal x = (mundo.x() - m_visible.left()) / m_visible.width();
    const qreal y = (mundo.y() - m_visible.top()) / m_visible.height();
    return {m_lienzo.left() + x * m_lienzo.width(), m_lienzo.bottom() - y * m_lienzo.height()};
}

QPointF Encuadre::aMundo(QPointF pixel) const
{
    const qreal x = (pixel.x() - m_lienzo.left()) / m_lienzo.width();
    const qreal y = (m_lienzo.bottom() - pixel.y()) / m_lienzo.height();
    return {m_visible.left() + x * m_visible.width(), m_visible.top() + y * m_visible.height()};
}

void Encuadre::amplia(qreal factor, QPointF pixel)
{
    const QPointF centro = aMundo(pixel);
    const auto lado = [factor](qreal actual, qreal limite) {
        return std::clamp(actual / factor, std::min(limite, LadoMinimo), limite);
    };
    const QSizeF nuevo(lado(m_visible.width(), m_limites.width()),
                       lado(m_visible.height(), m_limites.height()));
    const qreal x = (centro.x() - m_visible.left()) / m_visible.width();
    const qreal y = (centro.y() - m_visible.top()) / m_visible.height();
    m_visible = QRectF(centro - QPointF(x * nuevo.width(), y * nuevo.height()), nuevo);
    recorta();
}

void Encuadre::desplaza(QPointF pixeles)
{
    m_visible.translate(-pixeles.x() * m_visible.width() / m_lienzo.width(),
                        pixeles.y() * m_visible.height() / m_lienzo.height());
    recorta();
}

void Encuadre::recorta()
{
    m_visible.moveLeft(
        std::clamp(m_visible.left(), m_limites.left(),
                   std::max(m_limites.left(), m_limites.right() - m_visible.width())));
    m_visible.moveTop(
        std::clamp(m_visible.top(), m_limites.top(),
                   std::max(m_limites.top(), m_limites.bottom() - m_visible.height())));
}

QList<qint64> Encuadre::marcas(qreal desde, qreal hasta, int maximo)
{
    if (maximo < 1 || hasta < desde)
        return {};
    const auto cuantas = [&](qint64 paso) {
        const auto unidad = static_cast<qreal>(paso);
        return std::floor(hasta / unidad) - std::ceil(desde / unidad) + 1;
    };
    qint64 potencia = 1;
    qint64 paso = 1;
    for (int i = 0; cuantas(paso) > maximo; ++i) {
        constexpr qint64 redondos[] = {2, 5, 10};
        paso = potencia * redondos[i % 3];
        if (i % 3 == 2)
            potencia *= 10;
    }
    QList<qint64> lista;
    const auto unidad = static_cast<qreal>(paso);
    for (auto marca = static_cast<qint64>(std::ceil(desde / unidad)) * paso;
         static_cast<qreal>(marca) <= hasta; marca += paso)
        lista << marca;
    return lista;
}
