// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/Prediccion.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/steps/HuecosDePaso.h"
#include "shell/frame/Evento.h"
#include "shell/steps/ModeloDePasos.h"
#include "shell/steps/PanelDePasos.h"
#include "shell/steps/TablaPorRellenar.h"
#include "ui_PanelDePasos.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

Prediccion::Prediccion(const Ui::PanelDePasos &ui, const ModeloDePasos &modelo, PanelDePasos *panel)
    : QObject(panel), m_ui(ui), m_modelo(modelo)
{
    // Every letter of the word is some lesson's mnemonic. The list keeps its place without it.
    ui.cmdPredecir->setShortcut(Qt::CTRL | Qt::Key_F8);
    QSizePolicy guardada = ui.cmdPredecir->sizePolicy();
    guardada.setRetainSizeWhenHidden(true);
    ui.cmdPredecir->setSizePolicy(guardada);
    ui.cmdPredecir->hide();
    connect(ui.cmdPredecir, &QToolButton::clicked, this,
            [this, panel](bool predice) { evento(panel, [&] { cmdPredecir_Click(predice); }); });
    connect(panel, &PanelDePasos::pasoActual, this,
            [this, panel](int paso) { evento(panel, [&] { ofrece(paso); }); });
    connect(&modelo, &ModeloDePasos::modelAboutToBeReset, this, [this] { muestra(false); });
}

/// Nothing changes where the step is the one before: answers stay.
void Prediccion::ofrece(int paso)
{
    const bool otro = std::exchange(m_paso, paso) != paso;
    const Paso este = paso < 0 ? Paso() : m_modelo.paso(paso);
    const bool hay = sePuedePredecir(este);
    m_ui.cmdPredecir->setVisible(hay);
    if (!m_ui.cmdPredecir->isChecked())
        return;
    if (!hay)
        muestra(false);
    else if (otro)
        m_tabla->pon(huecosDePaso(este));
}

void Prediccion::cmdPredecir_Click(bool predice)
{
    if (predice && m_ui.cmdReproducirPasos->isChecked())
        m_ui.cmdReproducirPasos->click();
    if (predice && !m_tabla)
        creaTabla();
    if (predice)
        m_tabla->pon(huecosDePaso(m_modelo.paso(m_paso)));
    muestra(predice);
}

void Prediccion::creaTabla()
{
    m_tabla = new TablaPorRellenar(m_ui.repartoDePasos);
    m_tabla->ponNombre(Traduce(u"Tabla del paso por rellenar"_s));
    m_tabla->sigueA(m_ui.listaDePasos);
    m_ui.repartoDePasos->setStretchFactor(m_ui.repartoDePasos->indexOf(m_tabla), 3);
}

/// The keyboard goes along where it was in what is put away.
void Prediccion::muestra(bool predice)
{
    m_ui.cmdPredecir->setChecked(predice);
    if (!m_tabla)
        return;
    QWidget *sale = m_tabla, *entra = m_ui.listaDePasos;
    if (predice)
        std::swap(sale, entra);
    const QWidget *enfocado = sale->window()->focusWidget();
    const bool dentro = enfocado && (enfocado == sale || sale->isAncestorOf(enfocado));
    m_ui.listaDePasos->setFocusProxy(predice ? m_tabla : nullptr);
    entra->show();
    if (dentro)
        entra->setFocus();
    sale->hide();
}
