// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/windows/FormPracticasMapa.h"

#include "practice/engine/Banco.h"
#include "practice/progress/Curso.h"
#include "practice/progress/Eleccion.h"
#include "practice/progress/LaminaDelCurso.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/ModeloFilas.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/grid/Rejilla.h"
#include "shell/look/Aspecto.h"
#include "shell/steps/LienzoDeLamina.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The levels of a kind, those that are mastered filled: "●●○".
QString enPuntos(int dominado)
{
    return QString(dominado, u'●') + QString(Niveles - dominado, u'○');
}

QStringList filaDe(const QString &clave, const Dominio &dominio, qint64 hoy)
{
    const TipoDeEjercicio &tipo = *tipoDeEjercicio(clave);
    return {Traduce(leccionDelCurso(tipo.leccion())->titulo),
            Traduce(tipo.titulo),
            enPuntos(dominio.dominado),
            dominio.hechos == 0 ? u"—"_s : Traduce(u"%1 de 5"_s).arg(dominio.deLasUltimas),
            QString::number(dominio.hechos),
            cuandoToca(dominio, hoy)};
}

} // namespace

FormPracticasMapa::FormPracticasMapa(Cuaderno &cuaderno, QWidget *padre)
    : QWidget(padre), m_cuaderno(cuaderno)
{
}

void FormPracticasMapa::construye()
{
    m_lienzo = new LienzoDeLamina(this);
    m_lienzo->setObjectName(u"PicMapa"_s);
    m_filas = new ModeloFilas({Traduce(u"Lección"_s), Traduce(u"Ejercicio"_s),
                               Traduce(u"Niveles dominados"_s), Traduce(u"Últimas sin ayuda"_s),
                               Traduce(u"Hechos"_s), Traduce(u"Repaso"_s)},
                              this);
    m_filas->ponColumnasDeTexto({0, 1, 2, 3, 5});
    m_rejilla = new Rejilla(this);
    m_rejilla->setObjectName(u"FlexMapa"_s);
    m_rejilla->setAccessibleName(Traduce(u"Lo dominado de cada tipo de ejercicio"_s));
    m_rejilla->setModel(m_filas);
    m_rejilla->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_rejilla->setTabKeyNavigation(false);
    new ColumnasRepartidas(m_rejilla);
    m_practicar = new QPushButton(Traduce(u"&Practicar este tipo"_s), this);
    m_practicar->setObjectName(u"cmdPracticar"_s);
    auto *columna = new QVBoxLayout(this);
    columna->setContentsMargins(2 * Aspecto::Margen, Aspecto::Margen, 2 * Aspecto::Margen,
                                Aspecto::Margen);
    columna->addWidget(m_lienzo, 1);
    columna->addWidget(m_rejilla, 1);
    columna->addWidget(m_practicar, 0, Qt::AlignLeft);
    conecta(m_rejilla, &QTableView::activated, this,
            [this](const QModelIndex &indice) { practica(indice.row()); });
    conecta(m_practicar, &QPushButton::clicked, this,
            [this] { practica(m_rejilla->currentIndex().row()); });
}

void FormPracticasMapa::showEvent(QShowEvent *suceso)
{
    QWidget::showEvent(suceso);
    evento(this, [this] { muestra(); });
}

void FormPracticasMapa::muestra()
{
    if (!m_rejilla)
        construye();
    const auto dominios = m_cuaderno.dominios();
    const qint64 hoy = Cuaderno::hoy();
    m_lienzo->pon(laminaDelCurso(dominios, hoy));
    const int actual = std::max(0, m_rejilla->currentIndex().row());
    QList<QStringList> filas;
    for (const QString &clave : clavesDelBanco())
        filas << filaDe(clave, dominios.value(clave), hoy);
    m_filas->ponFilas(filas);
    m_rejilla->setCurrentIndex(m_filas->index(actual, 0));
}

void FormPracticasMapa::practica(int fila)
{
    const QString clave = clavesDelBanco().value(fila);
    if (!clave.isEmpty())
        Q_EMIT elegido(clave);
}
