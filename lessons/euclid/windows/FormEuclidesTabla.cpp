// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/windows/FormEuclidesTabla.h"

#include "lessons/euclid/HuecosDeEuclides.h"
#include "lessons/euclid/PasosDeEuclides.h"
#include "lessons/euclid/windows/ModeloEuclides.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "shell/steps/TablaPorRellenar.h"
#include "ui_FormEuclidesTabla.h"

#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const Moneda DividendoInicial = Moneda::deEntero(240);
const Moneda DivisorInicial = Moneda::deEntero(46);

/// What the panel of the status bar keeps beside its text: empty for the standard algorithm.
constexpr auto PropiedadTag = "Tag";

} // namespace

FormEuclidesTabla::FormEuclidesTabla(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormEuclidesTabla>()),
      m_modelo(new ModeloEuclides(this)),
      m_pasos(new PanelDePasos(u"Algoritmo de Euclides"_s, this)),
      m_panelAlgoritmo(new QToolButton(this))
{
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblExtEuclides);
    ui->FlexEuclides->setModel(m_modelo);
    ui->FlexEuclides->setEditTriggers(QAbstractItemView::DoubleClicked |
                                      QAbstractItemView::EditKeyPressed |
                                      QAbstractItemView::AnyKeyPressed);
    new ColumnasRepartidas(ui->FlexEuclides);
    preparaStatusBar();

    // From the event queue, once the editor is closed: a message box on top of an open editor would
    // take the focus away from the grid for good.
    connect(
        m_modelo, &ModeloEuclides::celdaEditada, this,
        [this](int columna, const QString &texto) {
            evento(this, [&] { FlexEuclides_AfterEdit(columna, texto); });
        },
        Qt::QueuedConnection);
    conecta(m_panelAlgoritmo, &QToolButton::clicked, this,
            &FormEuclidesTabla::StatusBar_PanelClick);
    conecta(ui->cmdRellenar, &QToolButton::clicked, this, &FormEuclidesTabla::cmdRellenar_Click);
    rehazTabla(DividendoInicial, DivisorInicial);
    ui->FlexEuclides->setCurrentIndex(m_modelo->index(0, ModeloEuclides::Dividendo));
}

FormEuclidesTabla::~FormEuclidesTabla() = default;

void FormEuclidesTabla::preparaStatusBar()
{
    m_panelAlgoritmo->setObjectName(u"StatusBar_1"_s);
    m_panelAlgoritmo->setToolTip(
        Traduce(u"Decide si usa o no el método de los restos reducidos"_s));
    m_panelAlgoritmo->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_panelAlgoritmo->setFocusPolicy(Qt::StrongFocus);
    m_panelAlgoritmo->setCheckable(true);
    ui->StatusBar->setSizeGripEnabled(false);
    ui->StatusBar->addWidget(m_panelAlgoritmo);
    setTabOrder(ui->cmdRellenar, ui->FlexEuclides);
    setTabOrder(ui->FlexEuclides, m_panelAlgoritmo);
    ponRestosReducidos(false);
}

void FormEuclidesTabla::ponRestosReducidos(bool reducidos)
{
    m_restosReducidos = reducidos;
    m_panelAlgoritmo->setChecked(reducidos);
    m_panelAlgoritmo->setProperty(PropiedadTag, reducidos ? u"1"_s : QString());
    m_panelAlgoritmo->setText(
        Traduce(reducidos ? u"Algoritmo de los restos reducidos"_s : u"Algoritmo estándard"_s));
}

void FormEuclidesTabla::rehazTabla(Moneda dividendo, Moneda divisor)
{
    m_modelo->pon(
        {dividendo, divisor,
         m_restosReducidos ? AlgoritmoEuclides::RestosReducidos : AlgoritmoEuclides::Estandar});
    muestraNeutro(ui->lblExtEuclides, m_modelo->tabla().resultado());
    m_pasos->pon(pasosDeEuclides(m_modelo->tabla()));
}

void FormEuclidesTabla::FlexEuclides_AfterEdit(int columna, const QString &texto)
{
    const auto algoritmo =
        m_restosReducidos ? AlgoritmoEuclides::RestosReducidos : AlgoritmoEuclides::Estandar;
    ui->lblAviso->clear();
    const auto leido =
        leeEntero(texto, Moneda::deEntero(-Moneda::MaximoEntero), mayorNumero(algoritmo));
    if (!leido)
        muestraVeredicto(
            ui->lblAviso, false,
            Traduce(u"%1: %2 Cuenta como 0."_s)
                .arg(m_modelo->headerData(columna, Qt::Horizontal, Qt::DisplayRole).toString(),
                     leido.razon().frase()));
    const Moneda valor = leido ? *leido : Moneda();
    if (columna == ModeloEuclides::Dividendo)
        rehazTabla(valor, m_modelo->tabla().divisor());
    else
        rehazTabla(m_modelo->tabla().dividendo(), valor);
}

/// The table stays as it is: the next edit of a number uses the other algorithm.
void FormEuclidesTabla::StatusBar_PanelClick()
{
    ponRestosReducidos(m_panelAlgoritmo->property(PropiedadTag).toString().isEmpty());
}

void FormEuclidesTabla::creaHuecos()
{
    m_huecos = new TablaPorRellenar(this);
    ui->columna->insertWidget(ui->columna->indexOf(ui->FlexEuclides) + 1, m_huecos);
    m_huecos->sigueA(ui->cmdRellenar);
}

/// In place of the table and its result, which would tell what is to be filled in.
void FormEuclidesTabla::cmdRellenar_Click(bool rellenar)
{
    if (!m_huecos)
        creaHuecos();
    if (rellenar)
        m_huecos->pon(huecosDeEuclides(m_modelo->tabla()));
    m_huecos->setVisible(rellenar);
    for (QWidget *suyo :
         {static_cast<QWidget *>(ui->FlexEuclides), static_cast<QWidget *>(ui->lblExtEuclides),
          static_cast<QWidget *>(ui->lblAviso)})
        suyo->setVisible(!rellenar);
}
