// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/plot/PintorDeGrafica.h"

#include "shell/look/Aspecto.h"

#include <QPainter>
#include <algorithm>

namespace {

QColor translucido(QColor color, int opacidad)
{
    color.setAlpha(opacidad);
    return color;
}

QColor colorDeVuelta(const QColor &color, int vuelta)
{
    if (vuelta < 0)
        return Aspecto::atenuado();
    constexpr float Naranja = 0.08F;
    return vuelta % 2 == 0 ? color
                           : QColor::fromHslF(Naranja, 0.85F, Aspecto::esOscuro() ? 0.62F : 0.42F);
}

} // namespace

PintorDeGrafica::PintorDeGrafica(const Encuadre &encuadre, const QPalette &colores,
                                 QPainter &pintor)
    : m_encuadre(encuadre), m_colores(colores), m_pintor(pintor)
{
    m_pintor.setRenderHint(QPainter::Antialiasing);
    // Points on the edge are drawn whole.
    m_pintor.setClipRect(m_encuadre.lienzo().adjusted(-4, -4, 4, 4));
}

void PintorDeGrafica::fondo()
{
    m_pintor.fillRect(m_encuadre.lienzo(), m_colores.base());
}

void PintorDeGrafica::tramo(qreal desde, qreal hasta)
{
    const QRectF &lienzo = m_encuadre.lienzo();
    const qreal izquierda = std::max(m_encuadre.aPixel({desde, 0}).x(), lienzo.left());
    const qreal derecha = std::min(m_encuadre.aPixel({hasta, 0}).x(), lienzo.right());
    if (izquierda < derecha) {
        const QRectF sitio(izquierda, lienzo.top(), derecha - izquierda, lienzo.height());
        m_pintor.fillRect(sitio, translucido(Aspecto::acento(), 34));
    }
}

void PintorDeGrafica::rejilla(const QList<qint64> &enX, const QList<qint64> &enY)
{
    const QRectF &lienzo = m_encuadre.lienzo();
    m_pintor.setPen(QPen(translucido(m_colores.color(QPalette::Mid), 120), 1));
    for (const qint64 marca : enX) {
        const qreal x = m_encuadre.aPixel({static_cast<qreal>(marca), 0}).x();
        m_pintor.drawLine(QPointF(x, lienzo.top()), QPointF(x, lienzo.bottom()));
    }
    for (const qint64 marca : enY) {
        const qreal y = m_encuadre.aPixel({0, static_cast<qreal>(marca)}).y();
        m_pintor.drawLine(QPointF(lienzo.left(), y), QPointF(lienzo.right(), y));
    }
}

void PintorDeGrafica::funcion(const QList<QPointF> &puntos, const QColor &color,
                              const TrazoDeGrafica &trazo)
{
    QPolygonF linea;
    for (const QPointF &punto : puntos)
        linea << m_encuadre.aPixel(punto);
    m_pintor.setPen(QPen(translucido(color, 110), 1));
    m_pintor.setBrush(Qt::NoBrush);
    if (trazo.unido)
        m_pintor.drawPolyline(linea);

    // Points grow with the room that they have.
    const qreal radioMinimo = trazo.unido ? 1.8 : 2.6;
    constexpr qreal radioMaximo = 4;
    qreal radio = radioMaximo;
    if (linea.size() > 1) {
        const qreal ancho = linea.last().x() - linea.first().x();
        radio = std::clamp(0.4 * ancho / static_cast<qreal>(linea.size() - 1), radioMinimo,
                           radioMaximo);
    }
    m_pintor.setPen(Qt::NoPen);
    for (qsizetype i = 0; i < linea.size(); ++i) {
        m_pintor.setBrush(colorDeVuelta(color, trazo.vuelta(puntos.at(i).x())));
        m_pintor.drawEllipse(linea.at(i), radio, radio);
    }
}

void PintorDeGrafica::recta(QPointF desde, QPointF hasta, const QColor &color)
{
    if (desde == hasta)
        return;
    m_pintor.setPen(QPen(color, 2, Qt::DashLine));
    m_pintor.drawLine(m_encuadre.aPixel(desde), m_encuadre.aPixel(hasta));
}

void PintorDeGrafica::leyenda(const QList<std::pair<QString, QColor>> &nombres)
{
    const QFontMetricsF medidas(m_pintor.font());
    QPointF esquina = m_encuadre.lienzo().topLeft() + QPointF(10, 8);
    for (const auto &[nombre, color] : nombres) {
        const QRectF sitio(esquina,
                           QSizeF(medidas.horizontalAdvance(nombre) + 18, medidas.height()));
        m_pintor.fillRect(sitio.adjusted(-2, 0, 2, 0),
                          translucido(m_colores.color(QPalette::Base), 200));
        m_pintor.setPen(Qt::NoPen);
        m_pintor.setBrush(color);
        m_pintor.drawEllipse(QPointF(sitio.left() + 5, sitio.center().y()), 4, 4);
        m_pintor.setPen(m_colores.color(QPalette::Text));
        m_pintor.drawText(sitio.adjusted(16, 0, 2, 0), Qt::AlignLeft | Qt::AlignVCenter, nombre);
        esquina.ry() += medidas.height();
    }
}

void PintorDeGrafica::marcoDelFoco()
{
    m_pintor.setClipping(false);
    m_pintor.setPen(QPen(m_colores.highlight().color(), 1));
    m_pintor.setBrush(Qt::NoBrush);
    m_pintor.drawRect(m_encuadre.lienzo());
}
