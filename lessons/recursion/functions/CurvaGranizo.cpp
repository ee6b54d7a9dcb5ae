// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/CurvaGranizo.h"

#include <QStringView>
#include <algorithm>
#include <cmath>

namespace {

/// log10 |n| from the leading digits; negative for what is no number other than 0.
double logaritmo(QStringView numero)
{
    constexpr qsizetype cifrasDeDouble = 15;
    if (numero.startsWith(u'-'))
        numero = numero.sliced(1);
    const qsizetype leidas = std::min(numero.size(), cifrasDeDouble);
    bool esNumero = false;
    const double principio = numero.first(leidas).toDouble(&esNumero);
    if (!esNumero || principio < 1)
        return -1;
    return std::log10(principio) + static_cast<double>(numero.size() - leidas);
}

} // namespace

void CurvaGranizo::agrega(const QString &valor)
{
    const qint64 paso = m_pasos++;
    const double altura = logaritmo(valor);
    if (altura < 0)
        return;
    m_maximo = std::max(m_maximo, altura);
    m_ultimo = {static_cast<double>(paso), altura};
    if (paso % m_distancia != 0)
        return;
    m_puntos << m_ultimo;
    if (m_puntos.size() < MaximoDePuntos)
        return;
    m_distancia *= 2;
    m_puntos.removeIf([this](QPointF p) { return std::llround(p.x()) % m_distancia != 0; });
}

QList<QPointF> CurvaGranizo::puntos() const
{
    QList<QPointF> todos = m_puntos;
    if (!todos.isEmpty() && todos.constLast() != m_ultimo)
        todos << m_ultimo;
    return todos;
}
