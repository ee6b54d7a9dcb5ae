// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/windows/FormUnidadesCayley.h"

#include "lessons/units/windows/FormUnidadesCasillas.h"
#include "lessons/units/windows/ModeloCayley.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormUnidadesCayley.h"

#include <QEvent>
#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;

FormUnidadesCayley::FormUnidadesCayley(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormUnidadesCayley>()),
      m_modelo(new ModeloCayley(this))
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdCayley->setIcon(Icono(u"CALCULAR"_s));
    Aspecto::destaca(ui->lblCelda, 1.1);
    m_modelo->ponOscuro(Aspecto::esOscuro());
    ui->FlexCayley->setModel(m_modelo);
    ui->FlexCayley->verticalHeader()->show();
    ui->FlexCayley->ponRotulosDeFilaEnCopia(true);
    ui->FlexCayley->ponTextoVacio(Traduce(u"Escriba un módulo de 1 a 60 y pulse «Mostrar»."_s));
    new FormUnidadesCasillas(ui->FlexCayley);

    conecta(ui->cmdCayley, &QPushButton::clicked, this, &FormUnidadesCayley::cmdCayley_Click);
    conecta(ui->txtNCayley, &QLineEdit::returnPressed, this,
            [this] { ui->cmdCayley->animateClick(); });
    for (const QRadioButton *opcion : {ui->OptOperacion_0, ui->OptOperacion_1, ui->OptOperacion_2})
        conecta(opcion, &QRadioButton::clicked, this, &FormUnidadesCayley::cmdCayley_Click);
    conecta(ui->FlexCayley->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FormUnidadesCayley::FlexCayley_CurrentChange);
    cmdCayley_Click();
}

FormUnidadesCayley::~FormUnidadesCayley() = default;

void FormUnidadesCayley::changeEvent(QEvent *suceso)
{
    if (suceso->type() == QEvent::PaletteChange)
        m_modelo->ponOscuro(Aspecto::esOscuro());
    QWidget::changeEvent(suceso);
}

void FormUnidadesCayley::cmdCayley_Click()
{
    using Operacion = TablaCayley::Operacion;
    const auto operacion = ui->OptOperacion_0->isChecked()   ? Operacion::ProductoDeUnidades
                           : ui->OptOperacion_1->isChecked() ? Operacion::Producto
                                                             : Operacion::Suma;
    m_modelo->pon({});
    const auto n = leeEntero(ui->txtNCayley->text(), 1, TablaCayley::MayorModulo);
    if (!n) {
        rechaza(ui->txtNCayley, ui->lblCelda,
                Traduce(u"El módulo es un número entero de 1 a 60."_s));
        return;
    }
    m_modelo->pon({*n, operacion});
    muestraNeutro(ui->lblCelda, m_modelo->tabla().descripcion());
}

void FormUnidadesCayley::FlexCayley_CurrentChange(const QModelIndex &actual)
{
    if (actual.isValid())
        ui->lblCelda->setText(actual.data(Qt::ToolTipRole).toString());
}
