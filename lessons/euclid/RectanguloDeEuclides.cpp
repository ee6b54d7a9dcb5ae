// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/RectanguloDeEuclides.h"

#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 MasCuadrados = 40;    ///< more of them are a hatching
constexpr qreal MenorConRotulo = 0.04; ///< of the longer side
constexpr qreal MenorVisible = 0.0005;

/// Cuts squares off what is left, by turns along the one side and the other.
class Corte
{
public:
    Corte(qreal a, qreal b, const QString &descripcion)
        : m_lamina(descripcion), m_hueco(0, 0, a, b), m_mayor(std::max(a, b))
    {
    }

    void divide(const DivisionEuclides &d, int cual)
    {
        m_alLargo = cual % 2 == 0;
        const auto lado = static_cast<qreal>(d.divisor.entero());
        const qint64 cociente = d.cociente.entero();
        const qreal cubierto = lado * static_cast<qreal>(cociente);
        if (cociente > 0 && lado > m_mayor * MenorVisible)
            agrega(lado, cociente, cual);
        quita(cubierto);
    }

    Lamina lamina(const QRectF &todo) const
    {
        Lamina hecha = m_lamina;
        hecha.rectangulo(todo, {Tono::Tinta});
        return hecha;
    }

private:
    void agrega(qreal lado, qint64 cociente, int cual)
    {
        const QString rotulo = lado > m_mayor * MenorConRotulo
                                   ? QString::number(static_cast<qint64>(lado))
                                   : QString();
        if (cociente > MasCuadrados) {
            const qreal largo = lado * static_cast<qreal>(cociente);
            pieza({m_hueco.topLeft(), m_alLargo ? QSizeF(largo, lado) : QSizeF(lado, largo)}, cual,
                  rotulo);
            return;
        }
        const QPointF avance = m_alLargo ? QPointF(lado, 0) : QPointF(0, lado);
        for (qint64 i = 0; i < cociente; ++i)
            pieza({m_hueco.topLeft() + avance * static_cast<qreal>(i), QSizeF(lado, lado)}, cual,
                  rotulo);
    }

    void pieza(const QRectF &lugar, int cual, const QString &rotulo)
    {
        m_lamina.rectangulo(lugar, Tono::serie(cual), true, rotulo);
        m_lamina.rectangulo(lugar, {Tono::Tinta});
    }

    /// What is left beyond the squares, or what they stand out by.
    void quita(qreal cubierto)
    {
        m_hueco =
            m_alLargo ? m_hueco.adjusted(cubierto, 0, 0, 0) : m_hueco.adjusted(0, cubierto, 0, 0);
        m_hueco = m_hueco.normalized();
    }

    Lamina m_lamina;
    QRectF m_hueco;
    qreal m_mayor;
    bool m_alLargo = true;
};

} // namespace

Lamina rectanguloDeEuclides(const TablaEuclides &tabla, qsizetype hasta)
{
    const auto a = static_cast<qreal>(tabla.dividendo().entero());
    const auto b = static_cast<qreal>(tabla.divisor().entero());
    if (a <= 0 || b <= 0)
        return {};
    Corte corte(
        a, b,
        Traduce(u"Un rectángulo de %1 por %2, cubierto con los cuadrados de las primeras %3 "
                "divisiones."_s)
            .arg(tabla.dividendo().texto(), tabla.divisor().texto())
            .arg(hasta + 1));
    for (qsizetype i = 0; i <= hasta; ++i)
        corte.divide(tabla.divisiones()[i], static_cast<int>(i));
    return corte.lamina({0, 0, a, b});
}
