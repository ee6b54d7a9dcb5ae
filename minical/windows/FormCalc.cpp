#include "minical/windows/FormCalc.h"

#include "minical/windows/FormCalcExpresion.h"
#include "minical/windows/FormCalcLetra.h"
#include "minical/windows/FormCalcModelo.h"
#include "minical/windows/FormCalcOrden.h"
#include "minical/windows/FormCalcRejilla.h"
#include "minical/windows/FormZoom.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"

#include <QAction>
#include <QBoxLayout>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
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
    // A cell that is being edited hands its text to the sheet as the window goes: not later, when
    // the sheet is no more.
    hide();
}

void FormCalc::showEvent(QShowEvent *suceso)
{
    FormLeccion::showEvent(suceso);
    // The keys go to the sheet as soon as the window is open; while it opens, its frame takes the
    // focus for itself.
    if (!suceso->spontaneous())
        QTimer::singleShot(0, m_rejilla, qOverload<>(&QWidget::setFocus));
}

void FormCalc::preparaHoja()
{
    auto *panel = new QWidget(this);
    m_rejilla = new FormCalcRejilla(panel);
    m_modelo = new FormCalcModelo(m_hoja, this);
    m_rejilla->setObjectName(u"FlexCalc"_s);
    m_rejilla->setAccessibleName(Traduce(u"Hoja de cálculo"_s));
    m_rejilla->setModel(m_modelo);
    m_rejilla->ponAnchos({});
    // The corner of the headers is current at first, not A1, which the grid would take by itself.
    m_rejilla->setCurrentIndex({});
    m_expresion = new FormCalcExpresion(panel);
    auto *columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Aspecto::Espacio / 2);
    columna->addWidget(m_expresion);
    columna->addWidget(m_rejilla);
    columna->addWidget(preparaEstado(panel));
    columna->addWidget(preparaAviso(panel));
    agregaTema(u"Hoja de cálculo"_s, u"hoja"_s, panel);

    conecta(m_modelo, &FormCalcModelo::evaluada, this, [this](Celda celda) {
        actualizaZoom(celda);
        alCambiarHoja();
    });
    conecta(m_modelo, &FormCalcModelo::dataChanged, this, [this](const QModelIndex &cambiada) {
        if (cambiada == m_rejilla->currentIndex())
            muestraActual();
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
}

/// What is to be told about the current cell.
QWidget *FormCalc::preparaEstado(QWidget *panel)
{
    m_estado = new QLabel(panel);
    m_estado->setObjectName(u"lblEstado"_s);
    m_estado->setAccessibleName(Traduce(u"Sobre la celda actual"_s));
    m_estado->setContentsMargins(Aspecto::Espacio, 0, Aspecto::Espacio, Aspecto::Espacio / 2);
    m_estado->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // A long explanation is no reason for a wide window.
    m_estado->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return m_estado;
}

/// What stands below the grid while a long paste is going on.
QWidget *FormCalc::preparaAviso(QWidget *panel)
{
    m_aviso = new QWidget(panel);
    m_aviso->hide();
    m_cmdDetener = new QPushButton(ImgStop(), Traduce(u"D&etener"_s), m_aviso);
    m_cmdDetener->setObjectName(u"cmdDetener"_s);
    m_cmdDetener->setToolTip(Traduce(u"Deja de pegar; lo pegado se queda"_s));
    conecta(m_cmdDetener, &QPushButton::clicked, this, [this] { corrida().detener(); });
    auto *fila = new QHBoxLayout(m_aviso);
    fila->addWidget(new QLabel(Traduce(u"Calculando lo que se ha pegado…"_s), m_aviso));
    fila->addStretch();
    fila->addWidget(m_cmdDetener);
    return m_aviso;
}

void FormCalc::preparaBarra()
{
    m_barra = new QToolBar(this);
    m_barra->setObjectName(u"Toolbar"_s);
    m_barra->setWindowTitle(Traduce(u"Órdenes de la hoja"_s));
    m_barra->setIconSize({24, 24});
    static_cast<QBoxLayout *>(layout())->insertWidget(0, m_barra);

    m_txtPrecision = new QLineEdit(m_barra);
    m_txtPrecision->setObjectName(u"txtPrecisión"_s);
    m_txtPrecision->setFont(letraDeHoja());
    m_txtPrecision->setText(QString::number(Sesión().Precisión()));
    m_txtPrecision->setToolTip(
        Traduce(u"Precisión: cifras de los valores decimales, hasta 1000"_s));
    m_txtPrecision->setAccessibleName(Traduce(u"Precisión"_s));
    constexpr int anchoDeMuestra = 9;
    m_txtPrecision->setMaximumWidth(
        m_txtPrecision->fontMetrics().horizontalAdvance(QString(anchoDeMuestra, u'0')));

    for (const Orden &orden : ordenes()) {
        if (orden.clave == u"ValidarPrecisión"_s) {
            m_barra->addSeparator();
            m_barra->addWidget(m_txtPrecision)->setObjectName(u"Precisión"_s);
        }
        agregaOrden(orden);
    }
    accion(u"Zoom"_s)->setCheckable(true);
    auto *guardar = findChild<QToolButton *>(u"Guardar"_s);
    guardar->setPopupMode(QToolButton::MenuButtonPopup);
    guardar->addAction(accion(u"GuardarComo"_s));
    conecta(m_txtPrecision, &QLineEdit::returnPressed, this, &FormCalc::ValidarPrecision);
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
    conecta(accion, &QAction::triggered, this, [this, &orden] { Toolbar_ButtonClick(orden); });

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

QAbstractButton *FormCalc::botonDeParada() const
{
    return m_aviso->isHidden() ? nullptr : m_cmdDetener;
}

void FormCalc::Toolbar_ButtonClick(const Orden &orden)
{
    // A button takes no focus: what is being typed is still in its field.
    terminaEdiciones();
    (this->*orden.hace)();
    alCambiarHoja();
}

/// Whatever may have changed the sheet ends here: the title and what can be undone.
void FormCalc::alCambiarHoja()
{
    const Historial &historial = m_hoja.historial();
    accion(u"Deshacer"_s)->setEnabled(historial.puedeDeshacer());
    accion(u"Rehacer"_s)->setEnabled(historial.puedeRehacer());
    QString titulo = Traduce(u"Mini hoja de cálculo"_s);
    if (!m_ruta.isEmpty())
        titulo += u" - "_s + QFileInfo(m_ruta).fileName();
    setWindowTitle(historial.modificado() ? titulo + u" *"_s : titulo);
}

void FormCalc::FlexCalc_Menu(const QPoint &donde)
{
    QMenu menu(this);
    const QList<QStringList> grupos{{u"CopiarResultado"_s, u"CopiarExpresión"_s, u"Cortar"_s},
                                    {u"Deshacer"_s, u"Rehacer"_s},
                                    {u"ValorDecimal"_s, u"Recalcular"_s, u"Zoom"_s}};
    for (const QStringList &grupo : grupos) {
        menu.addSeparator();
        for (const QString &clave : grupo)
            menu.addAction(accion(clave));
    }
    menu.exec(donde);
}
