// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/TablaPorRellenar.h"

#include "shell/access/Anuncio.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Textos.h"
#include "shell/steps/ModeloDeHuecos.h"
#include "ui_TablaPorRellenar.h"

using namespace Qt::Literals::StringLiterals;

TablaPorRellenar::TablaPorRellenar(QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::TablaPorRellenar>()),
      m_modelo(new ModeloDeHuecos(this))
{
    ui->setupUi(this);
    traduceVentana(this);
    setFocusProxy(ui->FlexHuecos);
    ui->FlexHuecos->setModel(m_modelo);
    ui->FlexHuecos->setEditTriggers(QAbstractItemView::DoubleClicked |
                                    QAbstractItemView::EditKeyPressed |
                                    QAbstractItemView::AnyKeyPressed);
    ui->FlexHuecos->ponTextoVacio(Traduce(u"No hay nada que rellenar."_s));
    new ColumnasRepartidas(ui->FlexHuecos);
    conecta(ui->cmdOcultarUna, &QToolButton::clicked, this,
            [this] { oculta([](TablaConHuecos &tabla) { tabla.ocultaAlAzar(1); }); });
    conecta(ui->cmdOcultarDos, &QToolButton::clicked, this,
            [this] { oculta([](TablaConHuecos &tabla) { tabla.ocultaAlAzar(2); }); });
    conecta(ui->cmdOcultarTodas, &QToolButton::clicked, this,
            [this] { oculta([](TablaConHuecos &tabla) { tabla.ocultaTodas(); }); });
    conecta(ui->cmdMostrarTodas, &QToolButton::clicked, this,
            [this] { oculta([](TablaConHuecos &tabla) { tabla.muestraTodas(); }); });
    conecta(ui->cmdPorQue, &QToolButton::clicked, this, &TablaPorRellenar::cmdPorQue_Click);
    // From the event queue, once the editor is closed.
    connect(
        m_modelo, &ModeloDeHuecos::respondida, this,
        [this](const QModelIndex &celda) { evento(this, [&] { juzga(celda); }); },
        Qt::QueuedConnection);
}

TablaPorRellenar::~TablaPorRellenar() = default;

void TablaPorRellenar::pon(const TablaConHuecos &tabla)
{
    m_modelo->pon(tabla);
    ui->lblVeredictoDeCasilla->clear();
    ui->FlexHuecos->setCurrentIndex(m_modelo->primeraPendiente());
}

const TablaConHuecos &TablaPorRellenar::tabla() const
{
    return m_modelo->tabla();
}

void TablaPorRellenar::ponNombre(const QString &nombre)
{
    ui->FlexHuecos->setAccessibleName(nombre);
}

void TablaPorRellenar::sigueA(QWidget *control)
{
    for (QWidget *suyo : findChildren<QWidget *>()) {
        if (suyo->focusPolicy() == Qt::NoFocus)
            continue;
        setTabOrder(control, suyo);
        control = suyo;
    }
}

/// The keyboard goes to the first cell that is to be filled in.
template <typename Cambio>
void TablaPorRellenar::oculta(Cambio cambio)
{
    m_modelo->cambia(cambio);
    const qsizetype faltan = m_modelo->tabla().pendientes();
    muestraNeutro(ui->lblVeredictoDeCasilla,
                  faltan == 0 ? QString() : Traduce(u"Casillas por rellenar: %1."_s).arg(faltan));
    const QModelIndex primera = m_modelo->primeraPendiente();
    if (!primera.isValid())
        return;
    ui->FlexHuecos->setCurrentIndex(primera);
    ui->FlexHuecos->setFocus();
}

void TablaPorRellenar::juzga(const QModelIndex &celda)
{
    if (!celda.isValid())
        return;
    const TablaConHuecos &tabla = m_modelo->tabla();
    const QString dicho = tabla.veredicto(celda.row(), celda.column());
    const auto estado = tabla.estado(celda.row(), celda.column());
    const bool bien = estado == TablaConHuecos::Estado::Acertada;
    const bool llena = bien && tabla.pendientes() == 0;
    if (estado == TablaConHuecos::Estado::Oculta)
        muestraNeutro(ui->lblVeredictoDeCasilla, dicho);
    else
        muestraVeredicto(ui->lblVeredictoDeCasilla, bien,
                         llena ? dicho + u' ' + Traduce(u"La tabla está completa."_s) : dicho);
    anuncia(ui->lblVeredictoDeCasilla);
    if (estado != TablaConHuecos::Estado::Oculta)
        Q_EMIT respondida(celda.row(), celda.column(), bien);
    if (llena)
        Q_EMIT completa();
}

void TablaPorRellenar::cmdPorQue_Click()
{
    const QModelIndex celda = ui->FlexHuecos->currentIndex();
    const QString razon =
        celda.isValid() ? m_modelo->tabla().porQue(celda.row(), celda.column()) : QString();
    muestraNeutro(ui->lblVeredictoDeCasilla,
                  razon.isEmpty() ? Traduce(u"Elija una casilla de la tabla."_s) : razon);
    anuncia(ui->lblVeredictoDeCasilla);
}
