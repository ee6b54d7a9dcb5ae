// SPDX-License-Identifier: GPL-3.0-or-later
// What a plot says in words and in a table.
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/plot/DatosDeGrafica.h"
#include "shell/plot/EjeDeGrafica.h"
#include "shell/plot/Grafica.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whole numbers as such; what is measured, to three decimals.
QString textoDe(qreal valor)
{
    return valor == std::round(valor) ? formatoEntero(std::llround(valor))
                                      : formatoDecimal(valor, 3);
}

} // namespace

void Grafica::ponEjes(const QString &x, const QString &y)
{
    m_nombreX = x;
    m_nombreY = y;
    m_ejeX->ponTitulo(x);
    m_ejeY->ponTitulo(y);
    coloca();
}

QString Grafica::resumen() const
{
    if (m_puntos.isEmpty())
        return m_textoVacio;
    const auto [menor, mayor] = std::minmax_element(
        m_puntos.begin(), m_puntos.end(), [](QPointF a, QPointF b) { return a.y() < b.y(); });
    return Traduce(
               u"%1 puntos. %2: de %3 a %4. %5: de %6 a %7. Intro abre los datos en una tabla."_s)
        .arg(formatoEntero(qint64{m_puntos.size()}), m_nombreX, textoDe(m_puntos.first().x()),
             textoDe(m_puntos.last().x()), m_nombreY, textoDe(menor->y()), textoDe(mayor->y()));
}

QString Grafica::puntoEnPalabras() const
{
    if (m_senalado < 0)
        return {};
    const QPointF punto = m_puntos.at(m_senalado);
    return u"%1: %2; %3: %4"_s.arg(m_nombreX, textoDe(punto.x()), m_nombreY, textoDe(punto.y()));
}

/// A series to a row where there are several, one after another.
QList<QStringList> Grafica::filasDeDatos() const
{
    QList<QStringList> filas;
    if (m_series.isEmpty())
        for (const QPointF &punto : m_puntos)
            filas << QStringList{textoDe(punto.x()), textoDe(punto.y())};
    for (const SerieDeGrafica &serie : m_series)
        for (const QPointF &punto : serie.puntos)
            filas << QStringList{serie.nombre, textoDe(punto.x()), textoDe(punto.y())};
    return filas;
}

void Grafica::muestraDatos()
{
    if (m_puntos.isEmpty())
        return;
    QStringList cabeceras{m_nombreX, m_nombreY};
    if (!m_series.isEmpty())
        cabeceras.prepend(Traduce(u"Serie"_s));
    if (m_datos)
        m_datos->close();
    m_datos = new DatosDeGrafica(cabeceras, filasDeDatos(), this);
    if (m_series.isEmpty())
        m_datos->vaAFila(std::max(0, m_senalado));
    m_datos->show();
}
