// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/congruences/windows/FormTCRSistema.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/congruences/ModeloCongruencias.h"
#include "lessons/congruences/PasosDelTCR.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormTCRSistema.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QShortcut>
#include <QStyledItemDelegate>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Paints the cells that spoil their row in the colour of errors, struck out so that colour is not
/// the only sign.
class MarcaDefectos : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *opcion, const QModelIndex &indice) const override
    {
        QStyledItemDelegate::initStyleOption(opcion, indice);
        if (!indice.data(ModeloCongruencias::RolDefecto).toBool())
            return;
        opcion->palette.setColor(QPalette::Text, Aspecto::error());
        opcion->font.setStrikeOut(true);
    }
};

} // namespace

FormTCRSistema::FormTCRSistema(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormTCRSistema>()),
      m_modelo(new ModeloCongruencias(this)),
      m_pasos(new PanelDePasos(u"Teorema chino del resto"_s, this))
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdProblema1->setIcon(Icono(u"DADO"_s));
    ui->cmdResolver1->setIcon(Icono(u"RESOLVER"_s));
    ui->cmdSol1->setIcon(Icono(u"TCR"_s));
    preparaRejilla();

    conecta(ui->cmdProblema1, &QPushButton::clicked, this, &FormTCRSistema::cmdProblema1_Click);
    conecta(ui->cmdResolver1, &QPushButton::clicked, this, &FormTCRSistema::cmdResolver1_Click);
    conecta(ui->cmdSol1, &QPushButton::clicked, this, &FormTCRSistema::cmdSol1_Click);
    conecta(ui->txtNumEcuaciones, &QLineEdit::returnPressed, this,
            [this] { ui->cmdProblema1->animateClick(); });
    conecta(ui->txtSol1, &CampoLargo::returnPressed, this, [this] { ui->cmdSol1->animateClick(); });
    conecta(m_modelo, &ModeloCongruencias::dataChanged, this, &FormTCRSistema::FlexTCR_Change);
}

FormTCRSistema::~FormTCRSistema() = default;

void FormTCRSistema::preparaRejilla()
{
    ui->FlexTCR->setModel(m_modelo);
    ui->FlexTCR->setItemDelegate(new MarcaDefectos(this));
    ui->FlexTCR->setEditTriggers(QAbstractItemView::DoubleClicked |
                                 QAbstractItemView::EditKeyPressed |
                                 QAbstractItemView::AnyKeyPressed);
    ui->FlexTCR->verticalHeader()->show();
    new ColumnasRepartidas(ui->FlexTCR);
    ui->FlexTCR->setCurrentIndex(m_modelo->index(0, 0));
    const auto tecla = [this](QKeySequence::StandardKey cual, void (FormTCRSistema::*accion)()) {
        auto *atajo = new QShortcut(cual, ui->FlexTCR);
        atajo->setContext(Qt::WidgetShortcut);
        conecta(atajo, &QShortcut::activated, this, accion);
    };
    tecla(QKeySequence::Delete, &FormTCRSistema::borraCeldas);
    tecla(QKeySequence::Paste, &FormTCRSistema::pegaCeldas);
}

void FormTCRSistema::cmdProblema1_Click()
{
    const QString valor =
        Evalua(ui->txtNumEcuaciones->text(), QString::number(MayorSistema), Aritmetica::Entera);
    const double k = NumVal(valor);
    if (k < 1) {
        ui->txtNumEcuaciones->setFocus();
        ui->txtNumEcuaciones->selectAll();
        return;
    }
    m_modelo->pon(planteaSistema(static_cast<int>(k)));
    ui->FlexTCR->setCurrentIndex(m_modelo->index(0, 0));
    abreRespuesta();
    ui->txtNumEcuaciones->setFocus();
}

void FormTCRSistema::cmdResolver1_Click()
{
    if (hayQueResolver())
        cierraRespuesta(resuelve(m_modelo->sistema()));
}

void FormTCRSistema::cmdSol1_Click()
{
    // The verdict is kept from the student on purpose: who wants to know solves the system and
    // compares. What is wrong with the rows or the expression is still said.
    if (hayQueResolver())
        static_cast<void>(esSolucion(m_modelo->sistema(), ui->txtSol1->text()));
}

/// Whether there are rows that count, all of them valid; else shows the one that is not.
bool FormTCRSistema::hayQueResolver()
{
    if (filasQueCuentan(m_modelo->sistema()).isEmpty())
        return false;
    const int fila = m_modelo->primeraConDefecto();
    if (fila < 0)
        return true;
    const Congruencia &mala = m_modelo->sistema()[fila];
    ui->FlexTCR->setCurrentIndex(m_modelo->index(fila, mala.restoValido()
                                                           ? ModeloCongruencias::ColumnaDeModulos
                                                           : ModeloCongruencias::ColumnaDeRestos));
    ui->FlexTCR->setFocus();
    muestraVeredicto(ui->lblAviso, false,
                     Traduce(u"Fila %1: "_s).arg(fila + 1) + mala.defecto() + u'.');
    return false;
}

void FormTCRSistema::abreRespuesta()
{
    ui->cmdSol1->setEnabled(true);
    ui->txtSol1->setReadOnly(false);
    ui->txtSol1->setText({});
    ui->txtSol1->viewport()->setBackgroundRole(QPalette::Base);
    ui->lblAviso->clear();
    m_pasos->pon({});
}

/// Where there is no solution the field says so as the service does, and the reason stands below.
void FormTCRSistema::cierraRespuesta(const Resolucion &resolucion)
{
    ui->txtSol1->setText(resolucion.resultado);
    if (!resolucion.motivo.isEmpty())
        muestraVeredicto(ui->lblAviso, false, resolucion.motivo);
    ui->cmdSol1->setEnabled(false);
    ui->txtSol1->setReadOnly(true);
    ui->txtSol1->viewport()->setBackgroundRole(QPalette::Button);
    if (resolucion.desenlace != Resolucion::FueraDeAlcance)
        m_pasos->pon(pasosDelTCR(m_modelo->sistema()));
}

/// A solution that was shown is none of the rows as they are now, and neither is an objection.
void FormTCRSistema::FlexTCR_Change()
{
    ui->lblAviso->clear();
    if (ui->txtSol1->isReadOnly())
        abreRespuesta();
}

void FormTCRSistema::borraCeldas()
{
    const auto elegidas = ui->FlexTCR->selectionModel()->selectedIndexes();
    for (const QModelIndex &celda : elegidas)
        m_modelo->setData(celda, QString(), Qt::EditRole);
}

/// Lines of cells between tabs, from the current cell on; what has no place is left out.
void FormTCRSistema::pegaCeldas()
{
    const QModelIndex origen = ui->FlexTCR->currentIndex();
    const QStringList lineas =
        QGuiApplication::clipboard()->text().remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    for (int f = 0; f < std::min<qsizetype>(lineas.size(), 1000); ++f) {
        const QStringList celdas = lineas[f].split(u'\t');
        for (int c = 0; c < celdas.size(); ++c)
            m_modelo->setData(m_modelo->index(origen.row() + f, origen.column() + c), celdas[c],
                              Qt::EditRole);
    }
}
