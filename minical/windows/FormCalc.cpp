// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalc.h"

#include "minical/windows/FormCalcAspecto.h"
#include "minical/windows/FormCalcDocumento.h"
#include "minical/windows/FormCalcExpresion.h"
#include "minical/windows/FormCalcModelo.h"
#include "minical/windows/FormCalcOrden.h"
#include "minical/windows/FormCalcPortapapeles.h"
#include "minical/windows/FormCalcRejilla.h"
#include "minical/windows/FormZoom.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/steps/PanelDePasos.h"

#include <QAction>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

FormCalc::FormCalc(QWidget *padre) : FormLeccion(u"MiniCal.html"_s, padre)
{
    setObjectName(u"FormCalc"_s);
    setWindowIcon(Icono(u"MINICAL"_s));
    preparaHoja();
    agregaIntroduccion(u"Ayuda"_s);
    preparaBarra();
    alCambiarHoja();
}

FormCalc::~FormCalc()
{
    // What is being typed belongs to the sheet, and to the copy of it, which is written next.
    evento(this, [this] { terminaEdiciones(); });
}

void FormCalc::showEvent(QShowEvent *suceso)
{
    FormLeccion::showEvent(suceso);
    // A maximized window is shown once more when it makes room for another one.
    if (suceso->spontaneous() || std::exchange(m_mostrada, true))
        return;
    // The keys go to the sheet as soon as the window is open, unless another one has come in front
    // by then; while it opens, its frame takes the focus for itself.
    QTimer::singleShot(0, m_rejilla, [this] {
        const auto *marco = qobject_cast<QMdiSubWindow *>(parentWidget());
        if (!marco || marco->mdiArea()->currentSubWindow() == marco)
            m_rejilla->setFocus();
        m_tareas.lanza(m_documento->ofreceCopia());
    });
}

void FormCalc::preparaHoja()
{
    m_panel = std::make_unique<QWidget>(this);
    QWidget *panel = m_panel.get();
    m_rejilla = new FormCalcRejilla(panel);
    m_modelo = new FormCalcModelo(m_hoja, m_rejilla);
    m_rejilla->setObjectName(u"FlexCalc"_s);
    m_rejilla->setAccessibleName(Traduce(u"Hoja de cálculo"_s));
    m_rejilla->setAccessibleDescription(
        Traduce(u"Tab va de celda en celda; Escape y luego Tab salen de la hoja"_s));
    m_rejilla->setModel(m_modelo);
    m_rejilla->ponAnchos({});
    // The corner of the headers is current at first, not A1, which the grid would take by itself.
    m_rejilla->setCurrentIndex({});
    m_expresion = new FormCalcExpresion(panel);
    m_portapapeles = new FormCalcPortapapeles(m_hoja, *m_rejilla, panel);
    m_documento = std::make_unique<FormCalcDocumento>(m_hoja, *m_rejilla, this);
    auto *columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Aspecto::Espacio / 2);
    columna->addWidget(m_expresion);
    columna->addWidget(m_rejilla);
    columna->addWidget(preparaEstado(panel));
    columna->addWidget(m_portapapeles);
    // The sheet has the room for itself until a cell is to be explained.
    escondePasos(u"Pasos/VisiblesEnHoja"_s);
    m_pasos = new PanelDePasos(u"Explicar celda"_s, this);
    agregaTema(u"Hoja de cálculo"_s, u"hoja"_s, panel, m_pasos);
    conectaHoja();
}

void FormCalc::conectaHoja()
{
    conecta(m_modelo, &FormCalcModelo::evaluada, this, [this](Celda celda) {
        actualizaZoom(celda);
        alCambiarHoja();
    });
    conecta(m_modelo, &FormCalcModelo::dataChanged, this, [this](const QModelIndex &cambiada) {
        if (cambiada == m_rejilla->currentIndex())
            muestraActual();
        m_documento->cambia();
    });
    conecta(m_rejilla->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { muestraActual(); });
    conecta(m_rejilla, &FormCalcRejilla::escribiendo, this,
            [this](const QString &texto) { m_expresion->muestra(m_rejilla->actual(), texto); });
    conecta(m_rejilla, &FormCalcRejilla::edicionCerrada, this, [this] { muestraActual(); });
    conecta(m_expresion, &FormCalcExpresion::editada, this, &FormCalc::txtExpresion_Editada);
    conecta(m_expresion, &FormCalcExpresion::abandonada, this, [this] {
        muestraActual();
        m_rejilla->setFocus();
    });
    conecta(m_rejilla, &FormCalcRejilla::clic, this, &FormCalc::FlexCalc_Click);
    conecta(m_rejilla, &FormCalcRejilla::movida, this, [this] { ponZoomEn(m_rejilla->actual()); });
    conecta(m_rejilla, &FormCalcRejilla::borrar, this, &FormCalc::FlexCalc_Borrar);
    conecta(m_rejilla, &FormCalcRejilla::pegar, this, &FormCalc::FlexCalc_Pegar);
    conecta(m_rejilla, &FormCalcRejilla::menuPedido, this, &FormCalc::FlexCalc_Menu);
    conecta(m_portapapeles, &FormCalcPortapapeles::pegando, this, &FormCalc::ponPegando);
    conecta(m_portapapeles, &FormCalcPortapapeles::pegada, this, [this] {
        actualizaZoom(m_rejilla->actual());
        alCambiarHoja();
    });
    conecta(m_documento.get(), &FormCalcDocumento::abierta, this, [this] {
        ponZoomEn(m_rejilla->actual());
        alCambiarHoja();
    });
}

/// What is to be told about the current cell.
QWidget *FormCalc::preparaEstado(QWidget *panel)
{
    m_estado = new QLabel(panel);
    m_estado->setObjectName(u"lblEstado"_s);
    m_estado->setAccessibleDescription(Traduce(u"Sobre la celda actual"_s));
    m_estado->setContentsMargins(Aspecto::Espacio, 0, Aspecto::Espacio, Aspecto::Espacio / 2);
    m_estado->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // A long explanation is no reason for a wide window.
    m_estado->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return m_estado;
}

void FormCalc::preparaBarra()
{
    m_barra = new QToolBar(this);
    m_barra->setObjectName(u"Toolbar"_s);
    m_barra->setWindowTitle(Traduce(u"Órdenes de la hoja"_s));
    m_barra->setIconSize({24, 24});
    // Qt's own, for what does not fit.
    if (auto *mas = m_barra->findChild<QToolButton *>(u"qt_toolbar_ext_button"_s))
        mas->setAccessibleName(Traduce(u"Más órdenes"_s));
    static_cast<QBoxLayout *>(layout())->insertWidget(0, m_barra);

    preparaPrecision();
    for (const Orden &orden : ordenes()) {
        if (orden.clave == u"ValidarPrecisión"_s) {
            m_barra->addSeparator();
            m_barra->addWidget(m_txtPrecision)->setObjectName(u"Precisión"_s);
            m_avisoDePrecision = m_barra->addWidget(m_lblPrecision);
        }
        agregaOrden(orden);
    }
    accion(u"Zoom"_s)->setCheckable(true);
    auto *guardar = findChild<QToolButton *>(u"Guardar"_s);
    guardar->setPopupMode(QToolButton::MenuButtonPopup);
    guardar->addAction(accion(u"GuardarComo"_s));
    conecta(m_txtPrecision, &QLineEdit::returnPressed, this, &FormCalc::ValidarPrecision);
    muestraPrecision();
}

void FormCalc::preparaPrecision()
{
    m_txtPrecision = new QLineEdit(m_barra);
    m_txtPrecision->setObjectName(u"txtPrecisión"_s);
    m_txtPrecision->setFont(letraDeHoja());
    m_txtPrecision->setToolTip(
        Traduce(u"Precisión: cifras de los valores decimales, hasta 1000"_s));
    m_txtPrecision->setAccessibleName(Traduce(u"Precisión"_s));
    constexpr int anchoDeMuestra = 9;
    m_txtPrecision->setMaximumWidth(
        m_txtPrecision->fontMetrics().horizontalAdvance(QString(anchoDeMuestra, u'0')));
    m_lblPrecision = new QLabel(m_barra);
    m_lblPrecision->setObjectName(u"lblPrecisión"_s);
    // On a toolbar a label would take the colour of buttons.
    m_lblPrecision->setForegroundRole(QPalette::WindowText);
}

QAction *FormCalc::agregaOrden(const Orden &orden)
{
    auto *accion = new QAction(Icono(orden.imagen), Traduce(orden.rotulo), this);
    accion->setObjectName(orden.clave);
    accion->setToolTip(Traduce(orden.ayuda));
    accion->setShortcuts(orden.teclas);
    const bool enLaRejilla = orden.sitio == Orden::Sitio::EnLaRejilla;
    accion->setShortcutContext(enLaRejilla ? Qt::WidgetShortcut : Qt::WidgetWithChildrenShortcut);
    (enLaRejilla ? static_cast<QWidget *>(m_rejilla) : this)->addAction(accion);
    m_acciones.insert(orden.clave, accion);
    conecta(accion, &QAction::triggered, this,
            [this, &orden] { return Toolbar_ButtonClick(&orden); });

    if (orden.sitio == Orden::Sitio::TrasRaya)
        m_barra->addSeparator();
    if (orden.sitio == Orden::Sitio::TrasRaya || orden.sitio == Orden::Sitio::Barra) {
        m_barra->addAction(accion);
        QWidget *boton = m_barra->widgetForAction(accion);
        boton->setObjectName(orden.clave);
        boton->setAccessibleName(Traduce(orden.ayuda));
    }
    return accion;
}

Tarea<> FormCalc::Toolbar_ButtonClick(const Orden *orden)
{
    // A button takes no focus: what is being typed is still in its field.
    terminaEdiciones();
    if (const auto *enSeguida = std::get_if<void (FormCalc::*)()>(&orden->hace))
        (this->**enSeguida)();
    else
        co_await (this->*std::get<Tarea<> (FormCalc::*)()>(orden->hace))();
    alCambiarHoja();
}

/// Whatever may have changed the sheet ends here: the title and what can be undone.
void FormCalc::alCambiarHoja()
{
    const Historial &historial = m_hoja.historial();
    accion(u"Deshacer"_s)->setEnabled(historial.puedeDeshacer());
    accion(u"Rehacer"_s)->setEnabled(historial.puedeRehacer());
    setWindowTitle(m_documento->titulo());
    ponPasos();
}

void FormCalc::FlexCalc_Menu(const QPoint &donde)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QList<QStringList> grupos{
        {u"CopiarResultado"_s, u"CopiarExpresión"_s, u"Cortar"_s},
        {u"Deshacer"_s, u"Rehacer"_s},
        {u"ValorDecimal"_s, u"Recalcular"_s, u"ExplicarCelda"_s, u"Zoom"_s}};
    for (const QStringList &grupo : grupos) {
        menu->addSeparator();
        for (const QString &clave : grupo)
            menu->addAction(accion(clave));
    }
    menu->popup(donde);
}

Tarea<bool> FormCalc::puedeCerrarse()
{
    // One question is enough, however often the window is told to close.
    if (m_preguntando)
        co_return false;
    const QScopedValueRollback<bool> guardia(m_preguntando, true);
    terminaEdiciones();
    const bool permite = co_await m_documento->confirmaDescarte();
    alCambiarHoja();
    co_return permite;
}

void FormCalc::guardaLoPendiente()
{
    terminaEdiciones();
    FormLeccion::guardaLoPendiente();
}

void FormCalc::closeEvent(QCloseEvent *suceso)
{
    FormLeccion::closeEvent(suceso);
    if (m_zoom && suceso->isAccepted())
        m_zoom->close();
}
