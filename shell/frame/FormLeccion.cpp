// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/FormLeccion.h"

#include "shell/core/CopiaDeTrabajo.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/PanelesDeTemas.h"
#include "shell/look/Aspecto.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QScopeGuard>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

FormLeccion::FormLeccion(const QString &pagina, QWidget *padre)
    : QWidget(padre),
      m_pagina(pagina),
      m_tsTema(new QTabBar(this)),
      m_cmdPasos(new QToolButton(this)),
      m_cmdPracticas(new QToolButton(this)),
      m_paneles(new PanelesDeTemas(this)),
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

void FormLeccion::showEvent(QShowEvent *suceso)
{
    QWidget::showEvent(suceso);
    if (!std::exchange(m_vista, true))
        recuerdaDivisores();
}

QWidget *FormLeccion::marco()
{
    QWidget *hueco = qobject_cast<QMdiSubWindow *>(parentWidget());
    return hueco ? hueco : this;
}
