// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/DibujoDeEstados.h"

#include "shell/core/ModGlobal.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double Ancho = 1;   ///< of a state
constexpr double Paso = 1.45; ///< from one to the next
constexpr double Giro = 6.283185307179586;

/// With more states there is room for one number only.
constexpr int MasConPareja = 20;

} // namespace

DibujoDeEstados::DibujoDeEstados(const SucesionModular &sucesion)
    : m_sucesion(sucesion), m_periodo(sucesion.periodo().value_or(PeriodoModular{}))
{
    m_radio = std::max(Ancho * 0.9, m_periodo.longitud * Paso / Giro);
}

/// State i, from 1 on, is the pair of f(i) and f(i + 1). The tail lies to the left of the circle.
QPointF DibujoDeEstados::lugar(int estado) const
{
    const int enCirculo = estado - m_periodo.inicio;
    if (enCirculo < 0)
        return {-m_radio + Paso * enCirculo, 0};
    const double angulo = Giro / 2 + Giro * enCirculo / m_periodo.longitud;
    return QPointF(std::cos(angulo), std::sin(angulo)) * m_radio;
}

QString DibujoDeEstados::rotulo(int estado) const
{
    const int estados = m_periodo.inicio + m_periodo.longitud - 1;
    const QString primero = QString::number(m_sucesion.valor(estado));
    return estados > MasConPareja
               ? primero
               : primero + u", "_s + QString::number(m_sucesion.valor(estado + 1));
}

QString DibujoDeEstados::descripcion(int vistos) const
{
    const int cola = m_periodo.inicio - 1;
    const int hasta = std::min(vistos, cola + m_periodo.longitud);
    return Traduce(
               u"Los estados, que son las parejas de valores seguidos: una cola de %1 y un círculo "
               "de %2. Se han visto %3."_s)
        .arg(cola)
        .arg(m_periodo.longitud)
        .arg(hasta);
}

void DibujoDeEstados::agregaEstado(Lamina &lamina, int estado, int vistos) const
{
    const QPointF centro = lugar(estado);
    const bool actual = estado == vistos;
    const bool visto = estado <= vistos;
    const Tono tono = actual                      ? Tono{Tono::Acento}
                      : !visto                    ? Tono{Tono::Suave}
                      : estado < m_periodo.inicio ? Tono::serie(1)
                                                  : Tono::serie(0);
    lamina.elipse(QRectF(centro - QPointF(Ancho, Ancho) / 2, QSizeF(Ancho, Ancho)), tono, visto,
                  visto ? rotulo(estado) : QString());
}

Lamina DibujoDeEstados::lamina(int vistos) const
{
    const int estados = m_periodo.inicio + m_periodo.longitud - 1;
    if (m_periodo.longitud == 0 || estados > MaximoDeEstados)
        return {};
    Lamina lamina(descripcion(vistos));
    const auto une = [&](int desde, int hasta, Tono tono) {
        const QPointF a = lugar(desde);
        const QPointF b = lugar(hasta);
        const QPointF v = b - a;
        const double largo = std::hypot(v.x(), v.y());
        if (largo > 0)
            lamina.flecha(a + v / largo * Ancho / 2, b - v / largo * Ancho / 2, tono);
    };
    for (int i = 1; i < estados; ++i)
        une(i, i + 1, i < vistos ? Tono{} : Tono{Tono::Suave});
    if (vistos > estados)
        une(estados, m_periodo.inicio, {Tono::Acierto});
    // The state that comes back is the one that stands out then.
    const int actual = vistos > estados ? m_periodo.inicio : vistos;
    for (int i = 1; i <= estados; ++i)
        agregaEstado(lamina, i, i == actual ? i : vistos);
    return lamina;
}
