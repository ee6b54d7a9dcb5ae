// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/windows/FormFibonacciIdentidades.h"

#include "lessons/fibonacci/PasosDeIdentidad.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormFibonacciIdentidades.h"

using namespace Qt::Literals::StringLiterals;

FormFibonacciIdentidades::FormFibonacciIdentidades(QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormFibonacciIdentidades>()),
      m_panelDePasos(new PanelDePasos(u"Identidades"_s, this)),
      m_modelo({Traduce(u"Identidad"_s), Traduce(u"Fórmula"_s), Traduce(u"¿Se cumple?"_s),
                Traduce(u"Miembro izquierdo"_s), Traduce(u"Miembro derecho"_s)})
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdProbar->setIcon(Icono(u"COMPROBAR"_s));
    m_modelo.ponColumnasDeTexto({0, 1, 2});
    ui->FlexIdentidades->setModel(&m_modelo);
    ui->FlexIdentidades->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui->FlexIdentidades->ponTextoVacio(
        Traduce(u"Escriba m y n y pulse «Probar»: aquí aparecerán las identidades"_s));
    new ColumnasRepartidas(ui->FlexIdentidades);

    conecta(ui->cmdProbar, &QPushButton::clicked, this, &FormFibonacciIdentidades::cmdProbar_Click);
    for (QLineEdit *campo : {ui->TxtIndiceM, ui->TxtIndiceN}) {
        conecta(campo, &QLineEdit::returnPressed, this, &FormFibonacciIdentidades::cmdProbar_Click);
        conecta(campo, &QLineEdit::textChanged, this, &FormFibonacciIdentidades::TxtIndice_Change);
    }
    conecta(ui->FlexIdentidades->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &celda) { FlexIdentidades_RowColChange(celda.row()); });
}

FormFibonacciIdentidades::~FormFibonacciIdentidades() = default;

/// What was tried belongs to the numbers in the fields.
void FormFibonacciIdentidades::TxtIndice_Change()
{
    ui->lblAvisoIdentidades->clear();
    muestra({});
}

void FormFibonacciIdentidades::cmdProbar_Click()
{
    ui->lblAvisoIdentidades->clear();
    const auto m = lee(ui->TxtIndiceM);
    const auto n = m ? lee(ui->TxtIndiceN) : std::nullopt;
    if (!n) {
        muestra({});
        return;
    }
    m_probados = {*m, *n};
    muestra(pruebaIdentidades(*m, *n));
    ui->FlexIdentidades->selectRow(0);
}

void FormFibonacciIdentidades::muestra(const QList<IdentidadProbada> &identidades)
{
    m_identidades = identidades;
    QList<QStringList> filas;
    for (const IdentidadProbada &identidad : std::as_const(m_identidades)) {
        filas << QStringList{Traduce(identidad.nombre), Traduce(identidad.formula),
                             identidad.seCumple() ? Traduce(u"✓ Sí"_s) : Traduce(u"✗ No"_s),
                             formatoAbreviado(identidad.izquierda),
                             formatoAbreviado(identidad.derecha)};
    }
    m_modelo.ponFilas(filas);
    FlexIdentidades_RowColChange(-1);
}

std::optional<int> FormFibonacciIdentidades::lee(QLineEdit *campo)
{
    const auto valor = leeEntero(campo->text(), 1, MaximoDeIdentidades);
    if (!valor) {
        rechaza(campo, ui->lblAvisoIdentidades,
                Traduce(u"«%1» debe ser un número entero de 1 a %2."_s)
                    .arg(campo->accessibleName(), formatoEntero(qint64{MaximoDeIdentidades})));
    }
    return valor ? std::optional(*valor) : std::nullopt;
}

/// The sides of the chosen identity, whole, and why it holds.
void FormFibonacciIdentidades::FlexIdentidades_RowColChange(int fila)
{
    const IdentidadProbada identidad = m_identidades.value(fila);
    ui->txtIzquierda->setText(identidad.izquierda);
    ui->txtDerecha->setText(identidad.derecha);
    const bool elegida = fila >= 0 && fila < m_identidades.size();
    m_panelDePasos->pon(elegida ? pasosDeIdentidad(fila, m_probados.first, m_probados.second)
                                : Pasos());
}
