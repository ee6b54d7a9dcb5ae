// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/FormLeccion.h"

#include "shell/core/CopiaDeTrabajo.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/look/Aspecto.h"
#include "shell/steps/PanelDePasos.h"
#include "shell/steps/SeparadorDePasos.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QScopeGuard>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whether the user wants to see steps, in whatever lesson.
const QString ClaveDePasos = u"Pasos/Visibles"_s;
const QString TemaDeCuestiones = u"cuestiones"_s;

} // namespace

FormLeccion::FormLeccion(const QString &pagina, QWidget *padre)
    : QWidget(padre),
      m_pagina(pagina),
      m_tsTema(new QTabBar(this)),
      m_cmdPasos(new QToolButton(this)),
      m_cmdPracticas(new QToolButton(this)),
      m_paneles(new QStackedWidget(this)),
      m_cmdVolver(new QToolButton(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_tsTema->setObjectName(u"tsTema"_s);
    m_tsTema->setAccessibleName(Traduce(u"Temas de la lección"_s));
    m_tsTema->setExpanding(false);
    m_tsTema->setDrawBase(true);
    auto *columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, Aspecto::Espacio / 2, 0, 0);
    columna->setSpacing(0);
    auto *tira = new QHBoxLayout;
    tira->setContentsMargins(0, 0, Aspecto::Espacio / 2, 0);
    tira->addWidget(m_tsTema, 1);
    tira->addWidget(m_cmdPasos);
    tira->addWidget(m_cmdPracticas);
    tira->addWidget(m_cmdVolver);
    columna->addLayout(tira);
    columna->addWidget(m_paneles);
    preparaPasos();
    preparaPracticas();
    preparaVuelta();
    conecta(m_tsTema, &QTabBar::currentChanged, this, &FormLeccion::tsTema_Click);
    qApp->installEventFilter(this);
}

void FormLeccion::preparaPasos()
{
    m_cmdPasos->setObjectName(u"cmdPasos"_s);
    m_cmdPasos->setText(Traduce(u"Paso a paso"_s));
    m_cmdPasos->setToolTip(Traduce(u"Muestra u oculta por qué sale el resultado (F8)"_s));
    m_cmdPasos->setFocusPolicy(Qt::StrongFocus);
    m_cmdPasos->setCheckable(true);
    m_claveDePasos = ClaveDePasos;
    m_cmdPasos->setChecked(Sesión().recuerda(m_claveDePasos, true).toBool());
    m_cmdPasos->hide();
    conecta(m_cmdPasos, &QToolButton::clicked, this, &FormLeccion::cmdPasos_Click);
}

void FormLeccion::escondePasos(const QString &clave)
{
    m_claveDePasos = clave;
    m_cmdPasos->setChecked(Sesión().recuerda(m_claveDePasos, false).toBool());
}

void FormLeccion::preparaPracticas()
{
    m_cmdPracticas->setObjectName(u"cmdPracticas"_s);
    m_cmdPracticas->setText(Traduce(u"Practicar más"_s));
    m_cmdPracticas->setToolTip(
        Traduce(u"Más ejercicios de esta lección, con pistas y soluciones"_s));
    m_cmdPracticas->setFocusPolicy(Qt::StrongFocus);
    m_cmdPracticas->hide();
}

void FormLeccion::ofrecePracticas(const std::function<void()> &practica)
{
    m_hayPracticas = true;
    conecta(m_cmdPracticas, &QToolButton::clicked, this, practica);
}

QString FormLeccion::URL() const
{
    return Sesión().carpeta() + u"\\Doc\\"_s + m_pagina;
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

void FormLeccion::agregaTema(const QString &rotulo, const QString &clave, QWidget *panel,
                             PanelDePasos *pasos)
{
    const int indice =
        m_paneles->addWidget(pasos ? new SeparadorDePasos(panel, pasos, m_paneles) : panel);
    if (pasos)
        conecta(pasos, &PanelDePasos::pedido, this, [this] {
            m_cmdPasos->setChecked(true);
            cmdPasos_Click(true);
        });
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

void FormLeccion::tsTema_Click(int indice)
{
    m_paneles->setCurrentIndex(indice);
    m_cmdPracticas->setVisible(m_hayPracticas &&
                               m_tsTema->tabData(indice).toString() == TemaDeCuestiones);
    muestraPasos();
}

PanelDePasos *FormLeccion::pasosALaVista() const
{
    const auto *separador = qobject_cast<SeparadorDePasos *>(m_paneles->currentWidget());
    return separador ? separador->pasos() : nullptr;
}

void FormLeccion::muestraPasos()
{
    PanelDePasos *pasos = pasosALaVista();
    m_cmdPasos->setVisible(pasos != nullptr);
    if (pasos)
        pasos->setVisible(m_cmdPasos->isChecked());
}

void FormLeccion::cmdPasos_Click(bool visibles)
{
    Sesión().anota(m_claveDePasos, visibles);
    muestraPasos();
}

/// To the steps; from them back to the tool, and they go.
void FormLeccion::teclaDePasos()
{
    PanelDePasos *pasos = pasosALaVista();
    if (!pasos)
        return;
    const bool dentro = pasos->isAncestorOf(QApplication::focusWidget());
    if (dentro)
        m_tsTema->setFocus(Qt::ShortcutFocusReason);
    m_cmdPasos->setChecked(!dentro);
    cmdPasos_Click(!dentro);
    if (!dentro)
        pasos->enfoca();
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
        pulsacion->modifiers() & Qt::AltModifier && !introduccionAlFrente()) {
        evento(this, [this] { cmdVolver_Click(); });
        return true;
    }
    if (suceso->type() == QEvent::KeyPress && pulsacion->key() == Qt::Key_F8 &&
        !(pulsacion->modifiers() & ~Qt::KeypadModifier)) {
        evento(this, [this] { teclaDePasos(); });
        return true;
    }
    if (suceso->type() == QEvent::KeyPress && pulsacion->key() == Qt::Key_Escape &&
        botonEnMarcha()) {
        evento(this, [this] { detenCorrida(); });
        return true;
    }
    return QWidget::eventFilter(objeto, suceso);
}
