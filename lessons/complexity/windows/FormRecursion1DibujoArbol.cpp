// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/windows/FormRecursion1DibujoArbol.h"

#include "shell/access/Papel.h"
#include "shell/look/Aspecto.h"

#include <QPainter>
#include <algorithm>

namespace {

constexpr qreal OpacidadPorHacer = 0.22;

} // namespace

FormRecursion1DibujoArbol::FormRecursion1DibujoArbol(QWidget *padre) : QWidget(padre)
{
    ponPapel(this, QAccessible::Graphic);
}

void FormRecursion1DibujoArbol::ponArbol(const ArbolDeLlamadas &arbol)
{
    m_arbol = arbol;
    m_hechas = 0;
    updateGeometry();
    update();
}

void FormRecursion1DibujoArbol::ponHechas(int hechas)
{
    m_hechas = hechas;
    update();
}

QSize FormRecursion1DibujoArbol::minimumSizeHint() const
{
    const int linea = fontMetrics().height();
    return {m_arbol.columnas() * linea * 5 / 4, m_arbol.filas() * linea * 2};
}

QPointF FormRecursion1DibujoArbol::lugar(const Llamada &llamada) const
{
    return {(llamada.sitio.x() + 0.5) * width() / m_arbol.columnas(),
            (llamada.sitio.y() + 0.5) * height() / m_arbol.filas()};
}

qreal FormRecursion1DibujoArbol::radio() const
{
    const qreal deLetra = fontMetrics().height() * 0.95;
    const qreal deColumna = 0.48 * width() / m_arbol.columnas();
    return std::min({deLetra, deColumna, 0.36 * height() / m_arbol.filas()});
}

void FormRecursion1DibujoArbol::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const QList<Llamada> &llamadas = m_arbol.llamadas();
    pintor.setPen(QPen(Aspecto::atenuado(), 1.5));
    for (int i = 1; i < llamadas.size(); ++i) {
        pintor.setOpacity(i < m_hechas ? 1 : OpacidadPorHacer);
        pintor.drawLine(lugar(llamadas.at(llamadas.at(i).padre)), lugar(llamadas.at(i)));
    }
    for (int i = 0; i < llamadas.size(); ++i)
        pintaLlamada(pintor, i);
}

/// A repeated call has a dashed border besides its colour.
void FormRecursion1DibujoArbol::pintaLlamada(QPainter &pintor, int indice) const
{
    const Llamada &llamada = m_arbol.llamadas().at(indice);
    const QColor color = llamada.repetida ? Aspecto::error() : Aspecto::acento();
    const QPointF centro = lugar(llamada);
    const bool esUltima = indice == m_hechas - 1;
    // An opaque ground first, so that the lines end at the border.
    pintor.setOpacity(1);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(palette().base());
    pintor.drawEllipse(centro, radio(), radio());
    pintor.setOpacity(indice < m_hechas ? 1 : OpacidadPorHacer);
    pintor.setPen(QPen(color, esUltima ? 3 : 1.5, llamada.repetida ? Qt::DashLine : Qt::SolidLine));
    QColor fondo = color;
    fondo.setAlpha(esUltima ? 110 : 40);
    pintor.setBrush(fondo);
    pintor.drawEllipse(centro, radio(), radio());
    pintor.setPen(palette().color(QPalette::Text));
    pintor.drawText(QRectF(centro - QPointF(radio(), radio()), QSizeF(2 * radio(), 2 * radio())),
                    Qt::AlignCenter | Qt::TextDontClip, QString::number(llamada.n));
}
