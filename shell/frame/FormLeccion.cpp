// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/FormLeccion.h"

#include "shell/core/CopiaDeTrabajo.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Traduccion.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Relleno.h"
#include "shell/look/Aspecto.h"
#include "shell/page/PaginaDeLeccion.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QScopeGuard>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView TemaIntroduccion = u"intro";

} // namespace

FormLeccion::FormLeccion(const QString &pagina, QWidget *padre)
    : QWidget(padre),
      m_pagina(pagina),
      m_tsTema(new QTabBar(this)),
      m_paneles(new QStackedWidget(this)),
      m_cmdVolver(new QToolButton(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_tsTema->setObjectName(u"tsTema"_s);
    m_tsTema->setAccessibleName(Traduce(u"Temas de la lección"_s));
    m_tsTema->setExpanding(false);
    m_tsTema->setDrawBase(true);
    m_cmdVolver->setObjectName(u"cmdVolver"_s);
    m_cmdVolver->setText(Traduce(u"Volver a la página"_s));
    m_cmdVolver->setToolTip(Traduce(u"Volver al lugar de la página que trajo aquí (Alt+←)"_s));
    m_cmdVolver->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_cmdVolver->setArrowType(Qt::LeftArrow);
    m_cmdVolver->setAutoRaise(true);
    m_cmdVolver->setFocusPolicy(Qt::StrongFocus);
    m_cmdVolver->hide();
    auto *columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, Aspecto::Espacio / 2, 0, 0);
    columna->setSpacing(0);
    auto *tira = new QHBoxLayout;
    tira->addWidget(m_tsTema, 1);
    tira->addWidget(m_cmdVolver);
    columna->addLayout(tira);
    columna->addWidget(m_paneles);
    conecta(m_tsTema, &QTabBar::currentChanged, this, &FormLeccion::tsTema_Click);
    conecta(m_cmdVolver, &QToolButton::clicked, this, &FormLeccion::cmdVolver_Click);
    qApp->installEventFilter(this);
}

QString FormLeccion::URL() const
{
    return Sesión().carpeta() + u"\\Doc\\"_s + m_pagina;
}

void FormLeccion::muestraAyuda() const
{
    const QString seccion = seccionAlFrente();
    interlocutor().abre(PaginaTraducida(URL(), Idioma()) +
                        (seccion.isEmpty() ? seccion : u'#' + seccion));
}

QString FormLeccion::seccionAlFrente() const
{
    const QString clave = m_tsTema->tabData(m_tsTema->currentIndex()).toString();
    for (const TemaDePagina &tema : m_temasDePagina) {
        if (tema.clave != clave)
            continue;
        const auto *pestanas = m_paneles->currentWidget()->findChild<QTabWidget *>();
        return pestanas ? tema.pestanas.value(pestanas->currentIndex(), tema.seccion)
                        : tema.seccion;
    }
    return {};
}

void FormLeccion::cierra()
{
    marco()->close();
}

void FormLeccion::cierraSinPreguntar()
{
    m_cierrePermitido = true;
    cierra();
}

void FormLeccion::detenCorrida()
{
    if (QAbstractButton *boton = botonEnMarcha())
        boton->click();
}

QAbstractButton *FormLeccion::botonEnMarcha() const
{
    // Of several runs it is the one in sight that is meant.
    QAbstractButton *hallado = nullptr;
    for (const BotonDeCorrida *corrida : findChildren<BotonDeCorrida *>()) {
        if (corrida->enMarcha() && (!hallado || corrida->boton()->isVisible()))
            hallado = corrida->boton();
    }
    return hallado;
}

void FormLeccion::agregaTema(const QString &rotulo, const QString &clave, QWidget *panel)
{
    const int indice = m_paneles->addWidget(panel);
    panel->setObjectName(u"PanelFicha_%1"_s.arg(indice));
    m_tsTema->addTab(Traduce(rotulo));
    m_tsTema->setTabData(indice, clave);
}

void FormLeccion::quitaTema(const QString &clave)
{
    const int indice = indiceDeTema(clave);
    if (indice < 0)
        return;
    // The panel goes first: the strip tells which topic comes to the front once the tab is gone.
    QWidget *panel = m_paneles->widget(indice);
    m_paneles->removeWidget(panel);
    panel->hide();
    m_tsTema->removeTab(indice);
}

int FormLeccion::indiceDeTema(const QString &clave) const
{
    for (int i = 0; i < m_tsTema->count(); ++i) {
        if (m_tsTema->tabData(i).toString() == clave)
            return i;
    }
    return -1;
}

void FormLeccion::agregaIntroduccion(const QString &rotulo)
{
    auto *panel = new QWidget(this);
    auto *marco = new QVBoxLayout(panel);
    marco->setContentsMargins(0, 0, 0, 0);
    m_introduccion = new PaginaDeLeccion(panel);
    m_introduccion->navegador()->navega(PaginaTraducida(URL(), Idioma()));
    marco->addWidget(m_introduccion);
    agregaTema(rotulo, TemaIntroduccion.toString(), panel);
}

bool FormLeccion::abreTema(const QString &clave)
{
    const int indice = indiceDeTema(clave);
    if (indice >= 0)
        m_tsTema->setCurrentIndex(indice);
    return indice >= 0;
}

bool FormLeccion::rellenaCampo(const QString &campo, const QString &valor)
{
    auto *control = findChild<QWidget *>(campo);
    if (!control)
        return false;
    for (QTabWidget *pestanas : findChildren<QTabWidget *>()) {
        for (int i = 0; i < pestanas->count(); ++i) {
            if (pestanas->widget(i)->isAncestorOf(control))
                pestanas->setCurrentIndex(i);
        }
    }
    return rellena(*control, valor);
}

bool FormLeccion::introduccionAlFrente() const
{
    return m_introduccion && m_introduccion->isVisible();
}

void FormLeccion::ofreceVuelta(const std::function<void()> &vuelve)
{
    m_vuelve = vuelve;
    m_cmdVolver->show();
}

/// Without a page that led here, back is the lesson's own.
void FormLeccion::cmdVolver_Click()
{
    m_cmdVolver->hide();
    if (const auto vuelve = std::exchange(m_vuelve, {})) {
        vuelve();
    } else if (m_introduccion) {
        abreTema(TemaIntroduccion.toString());
        m_introduccion->navegador()->setFocus();
    }
}

void FormLeccion::tsTema_Click(int indice)
{
    m_paneles->setCurrentIndex(indice);
}

void FormLeccion::closeEvent(QCloseEvent *suceso)
{
    if (!m_cierrePermitido && !m_preguntando) {
        m_enCierre = true;
        m_tareas.lanza(pideCierre());
        m_enCierre = false;
    }
    if (!m_cierrePermitido) {
        suceso->ignore();
        return;
    }
    Q_EMIT descargada();
}

/// Nothing can be asked while the event waits: where an answer is needed, the window stays, and is
/// closed again once the user has allowed it.
Tarea<> FormLeccion::pideCierre()
{
    m_preguntando = true;
    const auto respondido = qScopeGuard([this] { m_preguntando = false; });
    m_cierrePermitido = co_await puedeCerrarse();
    if (m_cierrePermitido && !m_enCierre)
        cierra();
}

Tarea<bool> FormLeccion::puedeCerrarse()
{
    co_return true;
}

void FormLeccion::guardaLoPendiente()
{
    for (CopiaDeTrabajo *copia : findChildren<CopiaDeTrabajo *>())
        copia->guarda();
}

QWidget *FormLeccion::marco()
{
    QWidget *hueco = qobject_cast<QMdiSubWindow *>(parentWidget());
    return hueco ? hueco : this;
}

bool FormLeccion::eventFilter(QObject *objeto, QEvent *suceso)
{
    // Keys are taken here because fields and grids keep F1 and Escape for themselves.
    const bool tecla = suceso->type() == QEvent::KeyRelease || suceso->type() == QEvent::KeyPress;
    if (!tecla || !objeto->isWidgetType())
        return QWidget::eventFilter(objeto, suceso);
    auto *control = static_cast<QWidget *>(objeto);
    const auto *pulsacion = static_cast<QKeyEvent *>(suceso);
    if ((control != this && !isAncestorOf(control)) || pulsacion->isAutoRepeat())
        return QWidget::eventFilter(objeto, suceso);
    if (suceso->type() == QEvent::KeyRelease && pulsacion->key() == Qt::Key_F1) {
        evento(this, [this] { muestraAyuda(); });
        return true;
    }
    if (suceso->type() == QEvent::KeyPress && pulsacion->key() == Qt::Key_Left &&
        pulsacion->modifiers() == Qt::AltModifier && !introduccionAlFrente()) {
        evento(this, [this] { cmdVolver_Click(); });
        return true;
    }
    if (suceso->type() == QEvent::KeyPress && pulsacion->key() == Qt::Key_Escape &&
        botonEnMarcha()) {
        evento(this, [this] { detenCorrida(); });
        return true;
    }
    return QWidget::eventFilter(objeto, suceso);
}
