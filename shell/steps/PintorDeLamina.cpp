// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/PintorDeLamina.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

/// From the units of the drawing to those of the painter.
struct Escala
{
    QPointF origen;
    QPointF esquina;
    qreal factor = 1;

    QPointF punto(QPointF p) const { return esquina + (p - origen) * factor; }
    QRectF lugar(const QRectF &r) const { return {punto(r.topLeft()), punto(r.bottomRight())}; }
};

Escala escalaPara(const QRectF &marco, const QRectF &hueco)
{
    const qreal ancho = std::max(marco.width(), 1e-9);
    const qreal alto = std::max(marco.height(), 1e-9);
    const qreal factor = std::min(hueco.width() / ancho, hueco.height() / alto);
    const QPointF margen((hueco.width() - marco.width() * factor) / 2,
                         (hueco.height() - marco.height() * factor) / 2);
    return {marco.topLeft(), hueco.topLeft() + margen, factor};
}

/// As large as the place allows, and no larger than ordinary type twice over.
void escribe(QPainter &pintor, const QRectF &lugar, const QString &texto)
{
    constexpr qreal MayorLetra = 2;
    QFont fuente = pintor.font();
    const QFontMetricsF medidas(fuente);
    const qreal porAncho = lugar.width() / std::max(1.0, medidas.horizontalAdvance(texto));
    const qreal porAlto = lugar.height() / medidas.height();
    const qreal factor = std::min({porAncho * 0.92, porAlto, MayorLetra});
    fuente.setPixelSize(std::max(1, static_cast<int>(medidas.height() * factor * 0.8)));
    pintor.save();
    pintor.setFont(fuente);
    pintor.drawText(lugar, Qt::AlignCenter | Qt::TextDontClip, texto);
    pintor.restore();
}

void pintaFlecha(QPainter &pintor, QPointF desde, QPointF hasta)
{
    pintor.drawLine(desde, hasta);
    const QPointF v = hasta - desde;
    const qreal largo = std::hypot(v.x(), v.y());
    if (largo < 1)
        return;
    const qreal punta = std::min(8.0, largo / 2);
    const QPointF u = v / largo;
    const QPointF n(-u.y(), u.x());
    const QPointF base = hasta - u * punta;
    const QPointF vertices[] = {hasta, base + n * punta * 0.45, base - n * punta * 0.45};
    pintor.drawPolygon(vertices, 3);
}

void pintaFigura(QPainter &pintor, const Figura &figura, const Escala &escala,
                 const TintasDePaso &tintas)
{
    const QColor color = tintas.de(figura.tono);
    const QRectF lugar = escala.lugar(figura.lugar);
    pintor.setPen(QPen(color, 1.2));
    pintor.setBrush(figura.rellena || figura.clase == Figura::Flecha ? QBrush(color)
                                                                     : QBrush(Qt::NoBrush));
    switch (figura.clase) {
    case Figura::Rectangulo:
        pintor.drawRect(lugar);
        break;
    case Figura::Elipse:
        pintor.drawEllipse(lugar);
        break;
    case Figura::Linea:
        pintor.drawLine(lugar.topLeft(), lugar.bottomRight());
        break;
    case Figura::Flecha:
        pintaFlecha(pintor, lugar.topLeft(), lugar.bottomRight());
        break;
    case Figura::Texto:
        break;
    }
    if (figura.texto.isEmpty())
        return;
    if (figura.rellena)
        pintor.setPen(TintasDePaso::sobre(color));
    escribe(pintor, lugar, figura.texto);
}

} // namespace

void pintaLamina(QPainter &pintor, const Lamina &lamina, const QRectF &hueco,
                 const TintasDePaso &tintas)
{
    const Escala escala = escalaPara(lamina.marco(), hueco);
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    for (const Figura &figura : lamina.figuras())
        pintaFigura(pintor, figura, escala, tintas);
    pintor.restore();
}
