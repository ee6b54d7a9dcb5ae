// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FormPrincipal.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/system/Herramientas.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/start/FormAcercaDe.h"
#include "shell/start/MenuLecciones.h"
#include "shell/start/MenuVentana.h"
#include "shell/start/PanelBienvenida.h"
#include "ui_FormPrincipal.h"

#include <QActionGroup>
#include <QApplication>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QScreen>
#include <QSplitter>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

FormPrincipal::FormPrincipal(const Contenido &contenido, QWidget *padre)
    : QMainWindow(padre),
      ui(std::make_unique<Ui::FormPrincipal>()),
      m_lecciones(contenido.lecciones),
      m_hojaDeCalculo(contenido.hojaDeCalculo),
      m_practicas(contenido.practicas),
      m_timerPresentacion(new QTimer(this)),
      m_timerLogo(new QTimer(this)),
      m_timerTamano(new QTimer(this))
{
    ui->setupUi(this);
    traduceVentana(this);
    setWindowIcon(Icono(u"NUMORA"_s));
    preparaMenu(contenido);
    preparaOrdenes();
    preparaAspecto();
    recuperaTamano();

    ui->AniLogo->carga(u"ClipArt\\escudo.avi"_s, u"ESCUDO"_s);
    ui->AniLogo->setCursor(Cursor(u"MANO"_s, {10, 3}));
    ui->AniLogo->installEventFilter(this);
    m_timerLogo->setObjectName(u"TimerLogo"_s);
    m_timerLogo->setInterval(1min);
    conecta(m_timerLogo, &QTimer::timeout, this, &FormPrincipal::TimerLogo_Timer);
    m_timerPresentacion->setObjectName(u"TimerPresentacion"_s);
    m_timerPresentacion->setInterval(6s);
    m_timerTamano->setSingleShot(true);
    m_timerTamano->setInterval(300ms);
    connect(m_timerTamano, &QTimer::timeout, this, &FormPrincipal::anotaTamanos);
    connect(ui->Divisor, &QSplitter::splitterMoved, m_timerTamano, qOverload<>(&QTimer::start));
}

FormPrincipal::~FormPrincipal()
{
    // The lessons still close as children of what is then no more than a widget.
    ui->AreaDeTrabajo->disconnect(this);
    for (const QPointer<FormLeccion> &leccion : abiertas())
        leccion->disconnect(this);
    TerminaBignum();
}

void FormPrincipal::preparaMenu(const Contenido &contenido)
{
    m_menu = new MenuLecciones(contenido.lecciones, this);
    QListView *menu = ui->FlexMenu;
    menu->setModel(m_menu);
    menu->setItemDelegate(new PintorDeMenu(menu));
    menu->setIconSize({32, 32});
    menu->viewport()->setCursor(Cursor(u"MANO"_s, {10, 3}));
    menu->viewport()->installEventFilter(this);
    menu->installEventFilter(this);
    m_bienvenida = new PanelBienvenida(contenido, this);
    invitaAPracticar();
    ui->AreaDeTrabajo->ponBienvenida(m_bienvenida);
    connect(ui->AreaDeTrabajo, &QMdiArea::subWindowActivated, this,
            &FormPrincipal::cambiaDeLeccion);
    connect(ui->AreaDeTrabajo, &AreaLecciones::hayVentanas, this, &FormPrincipal::invitaAPracticar);
    conecta(m_bienvenida, &PanelBienvenida::elegida, this, &FormPrincipal::abreLeccion);
    conecta(m_bienvenida, &PanelBienvenida::practicas, this, &FormPrincipal::mnuPracticas_Click);
    conecta(m_bienvenida, &PanelBienvenida::sigue, this, [this] { practica(); });
    conecta(menu, &QListView::clicked, this, &FormPrincipal::FlexMenu_Click);
    conecta(menu->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &actual) { FlexMenu_MouseMove(actual.row()); });
}

void FormPrincipal::preparaOrdenes()
{
    ui->Calculadora->setIcon(Icono(u"CALCULADORA"_s));
    ui->calc->setIcon(Icono(u"HOJACALCULO"_s));
    ui->calc->setEnabled(static_cast<bool>(m_hojaDeCalculo.crea));
    ui->Algoritmos->setIcon(Icono(u"AYUDA"_s));
    ui->mnuLetraMayor->setShortcuts({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
    ui->mnuLetraMenor->setShortcut(Qt::CTRL | Qt::Key_Minus);
    ui->mnuCerrar->setShortcuts({Qt::CTRL | Qt::Key_W, Qt::CTRL | Qt::Key_F4});
    m_menuVentana = new MenuVentana(ui->mnuVentana, ui->AreaDeTrabajo);
    preparaIr();

    // What acts on the active lesson waits until there is one.
    cambiaDeLeccion();
    for (QAction *accion : {ui->Algoritmos, ui->mnuCerrar}) {
        accion->setEnabled(false);
        connect(ui->AreaDeTrabajo, &AreaLecciones::hayVentanas, accion, &QAction::setEnabled);
    }

    const auto orden = [this](QAction *accion, auto manejador) {
        conecta(accion, &QAction::triggered, this, manejador);
    };
    orden(ui->Calculadora, &FormPrincipal::Calculadora_Click);
    orden(ui->calc, &FormPrincipal::calc_Click);
    orden(ui->Algoritmos, &FormPrincipal::Algoritmos_Click);
    orden(ui->mnuCerrar, &FormPrincipal::mnuCerrar_Click);
    orden(ui->mnuSalir, [this] { close(); });
    orden(ui->mnuOtroPanel, &FormPrincipal::mnuOtroPanel_Click);
    ui->mnuPracticas->setVisible(static_cast<bool>(m_practicas.ventana.crea));
    orden(ui->mnuPracticas, &FormPrincipal::mnuPracticas_Click);
    orden(ui->mnuDepartamento, &FormPrincipal::mnuDepartamento_Click);
    orden(ui->mnuAcercaDe, [this] { muestraAcercaDe(false); });
    orden(ui->mnuLetraMayor, [this] { cambiaLetra(Aspecto::pasosDeLetra() + 1); });
    orden(ui->mnuLetraMenor, [this] { cambiaLetra(Aspecto::pasosDeLetra() - 1); });
    orden(ui->mnuLetraNormal, [this] { cambiaLetra(0); });
}

void FormPrincipal::preparaAspecto()
{
    auto *temas = new QActionGroup(this);
    const QList<std::pair<QAction *, Aspecto::Tema>> opciones{
        {ui->mnuTemaSistema, Aspecto::Tema::Sistema},
        {ui->mnuTemaClaro, Aspecto::Tema::Claro},
        {ui->mnuTemaOscuro, Aspecto::Tema::Oscuro}};
    for (const auto &[accion, tema] : opciones) {
        temas->addAction(accion);
        accion->setChecked(tema == Aspecto::tema());
        conecta(accion, &QAction::triggered, this, [this, tema = tema] {
            Aspecto::aplica(tema);
            // The windows' own palettes follow a moment later.
            ui->AreaDeTrabajo->setBackground(QApplication::palette().alternateBase());
            Sesión().anota(u"Ventana/Tema"_s, static_cast<int>(tema));
        });
    }
    ui->AreaDeTrabajo->setBackground(palette().alternateBase());
    ui->mnuSinMovimiento->setChecked(Aspecto::movimientoReducido());
    conecta(ui->mnuSinMovimiento, &QAction::toggled, this, &FormPrincipal::mnuSinMovimiento_Click);
}

void FormPrincipal::mnuSinMovimiento_Click(bool reducido)
{
    Aspecto::ponMovimientoReducido(reducido);
    Sesión().anota(u"Ventana/MovimientoReducido"_s, reducido);
    if (reducido)
        ui->AniLogo->para();
}

QWidget *FormPrincipal::muestraAcercaDe(bool presentacion)
{
    auto *acercaDe = new formAcercaDe(this);
    connect(acercaDe, &formAcercaDe::descargada, this, [this] {
        // Nothing comes back when the program ends, which closes the box as well.
        if (!m_cierrePermitido)
            show();
        m_timerPresentacion->stop();
    });
    if (presentacion) {
        // There is no window yet over which it could stand.
        acercaDe->adjustSize();
        acercaDe->move(screen()->availableGeometry().center() - acercaDe->rect().center());
        connect(m_timerPresentacion, &QTimer::timeout, acercaDe, &QWidget::close);
        m_timerPresentacion->start();
    }
    acercaDe->show();
    return acercaDe;
}

void FormPrincipal::FlexMenu_Click(const QModelIndex &indice)
{
    // Row -1 is the sheet.
    if (indice.isValid())
        abreLeccion(indice.row());
}

void FormPrincipal::FlexMenu_MouseMove(int fila)
{
    if (fila == m_filaResaltada || fila < 0)
        return;
    m_menu->ponResaltado(m_filaResaltada, false);
    m_menu->ponResaltado(fila, true);
    m_filaResaltada = fila;
}

void FormPrincipal::AniLogo_MouseDown(Qt::MouseButton boton)
{
    if (boton != Qt::RightButton) {
        mnuDepartamento_Click();
        return;
    }
    const bool enMarcha = ui->AniLogo->estado() == ReproductorAVI::Reproduciendo;
    ui->AniLogo->setCursor(Cursor(enMarcha ? u"STOP"_s : u"GO"_s, {16, 16}));
}

void FormPrincipal::TimerLogo_Timer()
{
    ui->AniLogo->reproduce(ReproductorAVI::Modo::UnaVez);
}

void FormPrincipal::Calculadora_Click()
{
    if (!interlocutor().lanzaAlguno(calculadoras()))
        interlocutor().avisa(this, Interlocutor::Icono::Informacion,
                             Traduce(u"No se encuentra ninguna calculadora en este equipo."_s),
                             Traduce(u"Calculadora"_s));
}

void FormPrincipal::calc_Click()
{
    abreLeccion(FilaHojaDeCalculo);
}

void FormPrincipal::Algoritmos_Click()
{
    const FormLeccion *leccion = leccionActiva();
    if (!leccion || leccion->objectName() == u"FormNavegador"_s)
        return;
    leccion->muestraAyuda();
}

void FormPrincipal::mnuCerrar_Click()
{
    if (QMdiSubWindow *ventana = ui->AreaDeTrabajo->currentSubWindow())
        ventana->close();
}

void FormPrincipal::mnuOtroPanel_Click()
{
    FormLeccion *leccion = leccionActiva();
    QWidget *destino = ui->FlexMenu;
    if (ui->FlexMenu->hasFocus() && !leccion)
        destino = m_bienvenida;
    else if (ui->FlexMenu->hasFocus())
        destino = leccion->focusWidget() ? leccion->focusWidget() : leccion;
    destino->setFocus(Qt::ShortcutFocusReason);
}

void FormPrincipal::mnuPracticas_Click()
{
    abreLeccion(FilaPracticas);
}

void FormPrincipal::invitaAPracticar()
{
    m_bienvenida->invita(m_practicas.invitacion ? m_practicas.invitacion() : QString());
}

void FormPrincipal::mnuDepartamento_Click()
{
    const QString direccion = Sesión().DptoURL();
    if (!direccion.isEmpty())
        interlocutor().abre(direccion);
}

void FormPrincipal::cambiaLetra(int pasos)
{
    Aspecto::ponPasosDeLetra(pasos);
    Sesión().anota(u"Ventana/Letra"_s, Aspecto::pasosDeLetra());
}

void FormPrincipal::showEvent(QShowEvent *suceso)
{
    QMainWindow::showEvent(suceso);
    if (suceso->spontaneous() || m_timerLogo->isActive())
        return;
    m_timerLogo->start();
    QTimer::singleShot(0, this, &FormPrincipal::TimerLogo_Timer);
    ui->FlexMenu->setFocus();
    // The work area has its size by then.
    QTimer::singleShot(0, this, &FormPrincipal::recuperaSesion);
}

bool FormPrincipal::event(QEvent *suceso)
{
    static const QList<QEvent::Type> cambios{QEvent::Resize, QEvent::Move,
                                             QEvent::WindowStateChange};
    if (isVisible() && cambios.contains(suceso->type()))
        m_timerTamano->start();
    return QMainWindow::event(suceso);
}

bool FormPrincipal::eventFilter(QObject *objeto, QEvent *suceso)
{
    static const QList<QEvent::Type> cambios{QEvent::Resize, QEvent::Move,
                                             QEvent::WindowStateChange};
    if (cambios.contains(suceso->type()) && qobject_cast<QMdiSubWindow *>(objeto))
        m_timerTamano->start();
    if (objeto == ui->FlexMenu->viewport() && suceso->type() == QEvent::MouseMove) {
        const auto *raton = static_cast<QMouseEvent *>(suceso);
        FlexMenu_MouseMove(ui->FlexMenu->indexAt(raton->position().toPoint()).row());
    } else if (objeto == ui->FlexMenu && suceso->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent *>(suceso)->key();
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter || tecla == Qt::Key_Space) {
            evento(this, [this] { FlexMenu_Click(ui->FlexMenu->currentIndex()); });
            return true;
        }
    } else if (objeto == ui->AniLogo && suceso->type() == QEvent::MouseButtonPress) {
        const auto boton = static_cast<QMouseEvent *>(suceso)->button();
        evento(this, [this, boton] { AniLogo_MouseDown(boton); });
    }
    return QMainWindow::eventFilter(objeto, suceso);
}
