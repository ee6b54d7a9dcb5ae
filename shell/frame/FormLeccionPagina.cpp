// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "shell/core/Traduccion.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/PanelesDeTemas.h"
#include "shell/frame/Relleno.h"
#include "shell/page/PaginaDeLeccion.h"

#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

// The lesson and its page: the introduction, help on F1, and the ways from one to the other.

using namespace Qt::Literals::StringLiterals;

namespace {

const QString TemaIntroduccion = u"intro"_s;

} // namespace

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
        if (tema.pestanas.isEmpty())
            return tema.seccion;
        const auto *pestanas = m_paneles->alFrente()->findChild<QTabWidget *>();
        return tema.pestanas.value(pestanas->currentIndex());
    }
    return {};
}

void FormLeccion::agregaIntroduccion(const QString &rotulo)
{
    auto *panel = new QWidget(this);
    auto *marco = new QVBoxLayout(panel);
    marco->setContentsMargins(0, 0, 0, 0);
    m_introduccion = new PaginaDeLeccion(panel);
    m_introduccion->navegador()->navega(PaginaTraducida(URL(), Idioma()));
    marco->addWidget(m_introduccion);
    agregaTema(rotulo, TemaIntroduccion, panel);
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
    m_cmdVolver->setVisible(static_cast<bool>(vuelve));
}

/// Without a page that led here, back is the lesson's own.
void FormLeccion::cmdVolver_Click()
{
    m_cmdVolver->hide();
    if (const auto vuelve = std::exchange(m_vuelve, {})) {
        vuelve();
    } else if (m_introduccion) {
        abreTema(TemaIntroduccion);
        m_introduccion->navegador()->setFocus();
    }
}

void FormLeccion::preparaVuelta()
{
    m_cmdVolver->setObjectName(u"cmdVolver"_s);
    m_cmdVolver->setText(Traduce(u"Volver a la página"_s));
    m_cmdVolver->setToolTip(Traduce(u"Volver al lugar de la página que trajo aquí (Alt+←)"_s));
    m_cmdVolver->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_cmdVolver->setArrowType(Qt::LeftArrow);
    m_cmdVolver->setAutoRaise(true);
    m_cmdVolver->setFocusPolicy(Qt::StrongFocus);
    m_cmdVolver->hide();
    conecta(m_cmdVolver, &QToolButton::clicked, this, &FormLeccion::cmdVolver_Click);
}
