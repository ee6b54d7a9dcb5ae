// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/OrbitaDeElemento.h"

#include "shell/core/ModGlobal.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype MasPotencias = 400;
constexpr qsizetype MasRotulos = 60;
constexpr qreal Radio = 50; ///< of the circle, in units of the drawing

/// Where the powers stand.
class Rueda
{
public:
    explicit Rueda(const PotenciasDeElemento &potencias)
        : m_cola(potencias.vuelta),
          m_vuelta(potencias.valores.size() - potencias.vuelta),
          m_punto(
              std::clamp(std::numbers::pi * Radio / static_cast<qreal>(m_vuelta) * 0.75, 0.7, 7.0))
    {
    }

    qreal punto() const { return m_punto; }

    QPointF lugar(qsizetype exponente) const
    {
        const auto desdeLaEntrada = static_cast<qreal>(exponente - m_cola);
        if (desdeLaEntrada < 0)
            return {-Radio + 2.8 * m_punto * desdeLaEntrada, 0};
        // 1 stands at the top where it is part of the circle, else the circle is entered from the
        // left.
        const qreal inicio = m_cola > 0 ? std::numbers::pi : std::numbers::pi * 1.5;
        const qreal angulo =
            inicio + 2 * std::numbers::pi * desdeLaEntrada / static_cast<qreal>(m_vuelta);
        return {Radio * std::cos(angulo), Radio * std::sin(angulo)};
    }

    /// From the border of one point to that of the next.
    void flecha(Lamina &lamina, qsizetype desde, qsizetype hasta) const
    {
        const QPointF a = lugar(desde), b = lugar(hasta), v = b - a;
        const qreal largo = std::hypot(v.x(), v.y());
        if (largo > 2 * m_punto)
            lamina.flecha(a + v * (m_punto / largo), b - v * (m_punto / largo), {Tono::Acento});
    }

private:
    qsizetype m_cola, m_vuelta;
    qreal m_punto;
};

QString descripcion(const PotenciasDeElemento &potencias)
{
    const qsizetype vuelta = potencias.valores.size() - potencias.vuelta;
    return potencias.vuelta == 0
               ? Traduce(u"Las %1 potencias distintas, en un círculo que vuelve a 1."_s).arg(vuelta)
               : Traduce(u"Una cola de %1 potencias y un círculo de %2 que se repite."_s)
                     .arg(potencias.vuelta)
                     .arg(vuelta);
}

} // namespace

Lamina orbitaDeElemento(const PotenciasDeElemento &potencias, qsizetype hasta)
{
    const qsizetype todas = potencias.valores.size();
    if (todas > MasPotencias)
        return {};
    const Rueda rueda(potencias);
    Lamina lamina(descripcion(potencias));
    for (qsizetype k = 0; k < std::min(hasta, todas); ++k)
        rueda.flecha(lamina, k, k + 1 < todas ? k + 1 : potencias.vuelta);
    const qreal lado = 2 * rueda.punto();
    for (qsizetype k = 0; k < todas; ++k) {
        const QRectF sitio(rueda.lugar(k) - QPointF(lado, lado) / 2, QSizeF(lado, lado));
        const bool actual = k == hasta || (hasta == todas && k == potencias.vuelta);
        lamina.elipse(sitio,
                      {actual      ? Tono::Acento
                       : k < hasta ? Tono::Tinta
                                   : Tono::Suave},
                      actual,
                      todas <= MasRotulos ? QString::number(potencias.valores[k]) : QString());
    }
    return lamina;
}
