// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/Lamina.h"

QRectF Lamina::marco() const
{
    // Not united(), for which a vertical or a horizontal line is empty.
    if (m_figuras.isEmpty())
        return {};
    QRectF marco = m_figuras.front().lugar.normalized();
    for (const Figura &figura : m_figuras) {
        const QRectF lugar = figura.lugar.normalized();
        marco.setLeft(qMin(marco.left(), lugar.left()));
        marco.setTop(qMin(marco.top(), lugar.top()));
        marco.setRight(qMax(marco.right(), lugar.right()));
        marco.setBottom(qMax(marco.bottom(), lugar.bottom()));
    }
    return marco;
}

void Lamina::rectangulo(const QRectF &lugar, Tono tono, bool rellena, const QString &texto)
{
    m_figuras.append({Figura::Rectangulo, lugar, texto, tono, rellena});
}

void Lamina::elipse(const QRectF &lugar, Tono tono, bool rellena, const QString &texto)
{
    m_figuras.append({Figura::Elipse, lugar, texto, tono, rellena});
}

void Lamina::linea(QPointF desde, QPointF hasta, Tono tono)
{
    m_figuras.append({Figura::Linea, QRectF(desde, hasta), {}, tono});
}

void Lamina::flecha(QPointF desde, QPointF hasta, Tono tono)
{
    m_figuras.append({Figura::Flecha, QRectF(desde, hasta), {}, tono});
}

void Lamina::texto(const QRectF &lugar, const QString &texto, Tono tono)
{
    m_figuras.append({Figura::Texto, lugar, texto, tono});
}
