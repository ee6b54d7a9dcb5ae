// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/RectaDeSoluciones.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/steps/EuclidesLargo.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal Ancho = 120, Alto = 80; ///< of the drawing, in units of its own
constexpr qreal MasRayas = 15;          ///< of its grid, in each direction
constexpr int MasPuntos = 40;
constexpr int MasRotulos = 7;

qreal real(const EnteroLargo &n)
{
    return n.texto().toDouble();
}

/// The part of the plane that is drawn, and the drawing.
class Plano
{
public:
    Plano(const QRectF &vista, const QString &descripcion) : m_vista(vista), m_lamina(descripcion)
    {
    }

    QPointF lugar(qreal x, qreal y) const
    {
        return {(x - m_vista.left()) / m_vista.width() * Ancho,
                (m_vista.bottom() - y) / m_vista.height() * Alto};
    }
    void cuadricula()
    {
        if (m_vista.width() > MasRayas || m_vista.height() > MasRayas)
            return;
        for (qreal x = std::ceil(m_vista.left()); x <= m_vista.right(); ++x)
            m_lamina.linea(lugar(x, m_vista.top()), lugar(x, m_vista.bottom()), {Tono::Suave});
        for (qreal y = std::ceil(m_vista.top()); y <= m_vista.bottom(); ++y)
            m_lamina.linea(lugar(m_vista.left(), y), lugar(m_vista.right(), y), {Tono::Suave});
    }
    void ejes()
    {
        m_lamina.flecha(lugar(m_vista.left(), 0), lugar(m_vista.right(), 0));
        m_lamina.flecha(lugar(0, m_vista.top()), lugar(0, m_vista.bottom()));
        m_lamina.texto({lugar(m_vista.right(), 0) + QPointF(-6, -7), QSizeF(6, 6)}, u"x"_s);
        m_lamina.texto({lugar(0, m_vista.bottom()) + QPointF(1, 0), QSizeF(6, 6)}, u"y"_s);
    }
    /// a·x + b·y = c from side to side.
    void recta(qreal a, qreal b, qreal c)
    {
        const qreal izquierda = std::max(m_vista.left(), (c - b * m_vista.bottom()) / a);
        const qreal derecha = std::min(m_vista.right(), (c - b * m_vista.top()) / a);
        m_lamina.linea(lugar(izquierda, (c - a * izquierda) / b),
                       lugar(derecha, (c - a * derecha) / b), {Tono::Acento});
    }
    void punto(qreal x, qreal y, const QString &rotulo)
    {
        constexpr qreal Radio = 1.5;
        const QPointF centro = lugar(x, y);
        const bool vale = x >= 0 && y >= 0;
        const Tono tono{vale ? Tono::Acierto : Tono::Fallo};
        m_lamina.elipse({centro - QPointF(Radio, Radio), QSizeF(2 * Radio, 2 * Radio)}, tono, vale);
        if (!rotulo.isEmpty())
            // On the side of the line where no axis stands.
            m_lamina.texto({centro + (x < 0 ? QPointF(-24, 1) : QPointF(2, -6)), QSizeF(22, 5)},
                           rotulo, tono);
    }

    const Lamina &lamina() const { return m_lamina; }

private:
    QRectF m_vista; ///< y upwards
    Lamina m_lamina;
};

/// From the origin and the points where the line meets the axes to one solution more at each end,
/// where those are not out of proportion.
QRectF vistaDe(const RectaDeSoluciones &r)
{
    qreal desdeX = 0, desdeY = 0;
    qreal hastaX = std::max(1.0, real(r.c) / real(r.a)),
          hastaY = std::max(1.0, real(r.c) / real(r.b));
    if (r.haySoluciones() && r.cuantas() < MasPuntos) {
        desdeX = real(r.x(r.kmin - 1));
        hastaX = std::max(hastaX, real(r.x(r.kmax + 1)));
        desdeY = real(r.y(r.kmax + 1));
        hastaY = std::max(hastaY, real(r.y(r.kmin - 1)));
    }
    QRectF vista(desdeX, desdeY, hastaX - desdeX, hastaY - desdeY);
    const qreal aireX = vista.width() * 0.08, aireY = vista.height() * 0.08;
    return vista.adjusted(-aireX, -aireY, aireX, aireY);
}

QString descripcion(const RectaDeSoluciones &r)
{
    const QString recta =
        Traduce(u"La recta %1·x + %2·y = %3"_s).arg(r.a.texto(), r.b.texto(), r.c.texto());
    if (!r.haySoluciones())
        return recta + Traduce(u", que no pasa por ningún punto de coordenadas enteras."_s);
    return recta + Traduce(u" y sus puntos de coordenadas enteras: %1 sin números negativos."_s)
                       .arg(r.cuantas().texto());
}

void agregaPuntos(Plano &plano, const RectaDeSoluciones &r)
{
    const EnteroLargo cuantas = r.cuantas();
    const bool pocas = cuantas < MasPuntos;
    const EnteroLargo desde = pocas ? r.kmin - 1 : r.kmin, hasta = pocas ? r.kmax + 1 : r.kmax;
    const EnteroLargo salto = (cuantas + MasPuntos - 1) / MasPuntos;
    for (EnteroLargo k = desde; k <= hasta; k = k + (salto > 1 ? salto : EnteroLargo(1))) {
        const EnteroLargo x = r.x(k), y = r.y(k);
        plano.punto(real(x), real(y),
                    cuantas < MasRotulos ? u"(%1, %2)"_s.arg(x.texto(), y.texto()) : QString());
    }
}

} // namespace

RectaDeSoluciones::RectaDeSoluciones(const EnteroLargo &primero, const EnteroLargo &segundo,
                                     const EnteroLargo &suma)
    : a(primero), b(segundo), c(suma)
{
    const EuclidesLargo euclides(a, b);
    g = euclides.mcd();
    s = euclides.coeficiente();
    t = (g - s * b) / a;
    const EnteroLargo veces = c / g;
    x0 = t * veces;
    y0 = s * veces;
    pasoX = b / g;
    pasoY = a / g;
    kmin = -(x0 / pasoX);
    kmax = y0 / pasoY;
}

Lamina dibujoDeRecta(const RectaDeSoluciones &recta)
{
    Plano plano(vistaDe(recta), descripcion(recta));
    plano.cuadricula();
    plano.ejes();
    plano.recta(real(recta.a), real(recta.b), real(recta.c));
    if (recta.haySoluciones())
        agregaPuntos(plano, recta);
    return plano.lamina();
}
