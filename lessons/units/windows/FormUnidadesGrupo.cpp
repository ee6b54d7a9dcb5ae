// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/windows/FormUnidadesGrupo.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/units/ModeloPotencias.h"
#include "lessons/units/ModeloUnidades.h"
#include "lessons/units/PasosDeUnidades.h"
#include "lessons/units/ResumenUnidades.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormUnidadesGrupo.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>

using namespace Qt::Literals::StringLiterals;

FormUnidadesGrupo::FormUnidadesGrupo(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormUnidadesGrupo>()),
      m_unidades(new ModeloUnidades(this)),
      m_ordenadas(new QSortFilterProxyModel(this)),
      m_potencias(new ModeloPotencias(this)),
      m_pasos(new PanelDePasos(u"Unidades"_s, this))
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdUnidades->setIcon(Icono(u"CALCULAR"_s));
    ui->cmdPotencias->setIcon(Icono(u"CALCULAR"_s));
    Aspecto::destaca(ui->lblResumen, 1.1);
    ui->txtElemento->setMinimumWidth(fontMetrics().horizontalAdvance(u"0000000"_s));
    preparaRejillas();

    conecta(ui->cmdUnidades, &QPushButton::clicked, this, &FormUnidadesGrupo::cmdUnidades_Click);
    conecta(ui->txtN, &QLineEdit::returnPressed, this, [this] { ui->cmdUnidades->animateClick(); });
    conecta(ui->cmdPotencias, &QPushButton::clicked, this, &FormUnidadesGrupo::cmdPotencias_Click);
    conecta(ui->txtElemento, &QLineEdit::returnPressed, this,
            [this] { ui->cmdPotencias->animateClick(); });
    conecta(ui->FlexUnidades->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FormUnidadesGrupo::FlexUnidades_CurrentChange);
    cmdUnidades_Click();
}

FormUnidadesGrupo::~FormUnidadesGrupo() = default;

void FormUnidadesGrupo::preparaRejillas()
{
    m_ordenadas->setSourceModel(m_unidades);
    m_ordenadas->setSortRole(ModeloUnidades::RolValor);
    ui->FlexUnidades->setModel(m_ordenadas);
    ui->FlexUnidades->setSortingEnabled(true);
    ui->FlexUnidades->sortByColumn(ModeloUnidades::Elemento, Qt::AscendingOrder);
    ui->FlexUnidades->ponTextoVacio(
        Traduce(u"Escriba un módulo de 1 a 10000 y pulse «Mostrar»."_s));
    new ColumnasRepartidas(ui->FlexUnidades);
    ui->FlexPotencias->setModel(m_potencias);
    ui->FlexPotencias->ponTextoVacio(
        Traduce(u"Elija una unidad de la tabla, o escriba un elemento y pulse «Potencias»."_s));
    new ColumnasRepartidas(ui->FlexPotencias);
}

void FormUnidadesGrupo::cmdUnidades_Click()
{
    m_unidades->pon({});
    m_pasos->pon({});
    borraPotencias();
    const auto n = leeEntero(ui->txtN->text(), 1, GrupoUnidades::MayorModulo);
    if (!n) {
        rechaza(ui->txtN, ui->lblResumen,
                Traduce(u"El módulo es un número entero de 1 a 10000."_s));
        return;
    }
    m_unidades->pon(GrupoUnidades(*n));
    muestraNeutro(ui->lblResumen, resumenDelGrupo(*m_unidades->grupo()));
    m_pasos->pon(pasosDelGrupo(*m_unidades->grupo()));
    ui->FlexUnidades->scrollToTop();
}

void FormUnidadesGrupo::cmdPotencias_Click()
{
    borraPotencias();
    if (!m_unidades->grupo())
        return;
    m_pasos->pon(pasosDelGrupo(*m_unidades->grupo()));
    const auto a = leeEntero(ui->txtElemento->text());
    if (!a) {
        rechaza(ui->txtElemento, ui->lblPotencias, Traduce(u"El elemento es un número entero."_s));
        return;
    }
    muestraPotencias(Modulo(*a, QString::number(m_unidades->grupo()->modulo())).toInt());
}

void FormUnidadesGrupo::FlexUnidades_CurrentChange(const QModelIndex &actual)
{
    if (!actual.isValid())
        return;
    const auto a =
        actual.siblingAtColumn(ModeloUnidades::Elemento).data(ModeloUnidades::RolValor).toInt();
    ui->txtElemento->setText(QString::number(a));
    muestraPotencias(a);
}

void FormUnidadesGrupo::muestraPotencias(std::int32_t a)
{
    m_potencias->pon(m_unidades->grupo()->potencias(a));
    ui->FlexPotencias->scrollToTop();
    muestraNeutro(ui->lblPotencias, resumenDePotencias(*m_unidades->grupo(), a));
    m_pasos->pon(pasosDeElemento(*m_unidades->grupo(), a));
}

void FormUnidadesGrupo::borraPotencias()
{
    m_potencias->pon({});
    ui->lblPotencias->clear();
}
