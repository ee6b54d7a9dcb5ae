// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/GeometriaHanoi.h"

#include <algorithm>

namespace {

constexpr qreal AltoDeBase = 10;
/// The share of the width of its third that the largest disc takes.
constexpr qreal AnchoMayor = 0.92;
constexpr qreal AnchoMenor = 0.22;
constexpr qreal GrosorMayor = 48;

} // namespace

GeometriaHanoi::GeometriaHanoi(QSizeF tamano, int discos)
    : m_tamano(tamano),
      m_discos(discos),
      // Half a disc of pole stands out above a full one.
      m_grosor(std::min(GrosorMayor, (tamano.height() - AltoDeBase) / (discos + 1)))
{
}

qreal GeometriaHanoi::centro(int palo) const
{
    return m_tamano.width() * (2 * palo + 1) / 6;
}

QRectF GeometriaHanoi::base() const
{
    return {0, m_tamano.height() - AltoDeBase, m_tamano.width(), AltoDeBase};
}

QRectF GeometriaHanoi::palo(int indice) const
{
    const qreal alto = m_grosor * (m_discos + 0.5);
    const qreal ancho = std::max(4.0, m_grosor / 4);
    return {centro(indice) - ancho / 2, base().top() - alto, ancho, alto};
}

QRectF GeometriaHanoi::disco(int disco, int palo, int altura) const
{
    const qreal parte = m_discos == 1 ? 1 : static_cast<qreal>(disco - 1) / (m_discos - 1);
    const qreal ancho = m_tamano.width() / 3 * (AnchoMenor + parte * (AnchoMayor - AnchoMenor));
    return {centro(palo) - ancho / 2, base().top() - m_grosor * (altura + 1), ancho, m_grosor};
}
