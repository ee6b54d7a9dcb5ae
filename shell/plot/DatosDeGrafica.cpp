// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/plot/DatosDeGrafica.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/ModeloFilas.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/grid/Rejilla.h"
#include "shell/look/Aspecto.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

DatosDeGrafica::DatosDeGrafica(const QStringList &cabeceras, const QList<QStringList> &filas,
                               QWidget *grafica)
    : QDialog(grafica), m_rejilla(new Rejilla(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(grafica->accessibleName());
    m_rejilla->setObjectName(u"FlexDatos"_s);
    m_rejilla->setAccessibleName(Traduce(u"Datos de la gráfica"_s));
    auto *modelo = new ModeloFilas(cabeceras, this);
    if (cabeceras.size() > 2)
        modelo->ponColumnasDeTexto({0}); // the name of the series
    modelo->ponFilas(filas);
    m_rejilla->setModel(modelo);
    new ColumnasRepartidas(m_rejilla);
    auto *columna = new QVBoxLayout(this);
    columna->setContentsMargins(Aspecto::Margen, Aspecto::Margen, Aspecto::Margen, Aspecto::Margen);
    columna->addWidget(m_rejilla);
    const int letra = fontMetrics().averageCharWidth();
    resize(letra * 60, fontMetrics().height() * 24);
}

void DatosDeGrafica::vaAFila(int fila)
{
    m_rejilla->setCurrentIndex(m_rejilla->model()->index(fila, 0));
}
