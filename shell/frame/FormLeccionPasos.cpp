// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/PanelesDeTemas.h"
#include "shell/steps/PanelDePasos.h"
#include "shell/steps/SeparadorDePasos.h"

#include <QApplication>
#include <QTabBar>
#include <QToolButton>

// The lesson and the panels of steps of its topics.

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whether the user wants to see steps, in whatever lesson.
const QString ClaveDePasos = u"Pasos/Visibles"_s;

} // namespace

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

PanelDePasos *FormLeccion::pasosALaVista() const
{
    const auto *separador = qobject_cast<SeparadorDePasos *>(m_paneles->alFrente());
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
