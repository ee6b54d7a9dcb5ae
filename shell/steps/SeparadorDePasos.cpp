// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/SeparadorDePasos.h"

#include "shell/core/clsSesion.h"
#include "shell/steps/PanelDePasos.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Room for the narrowest tool and a readable column of steps.
constexpr int AnchoParaDos = 900;

constexpr int ParteDePasos = 38; ///< of a hundred, at first

QString claveDeParte(Qt::Orientation orientacion)
{
    return orientacion == Qt::Horizontal ? u"Pasos/ParteAlLado"_s : u"Pasos/ParteDebajo"_s;
}

} // namespace

SeparadorDePasos::SeparadorDePasos(QWidget *herramienta, PanelDePasos *pasos, QWidget *padre)
    : QSplitter(padre), m_pasos(pasos)
{
    setChildrenCollapsible(false);
    addWidget(herramienta);
    addWidget(pasos);
    setStretchFactor(0, 100 - ParteDePasos);
    setStretchFactor(1, ParteDePasos);
    connect(this, &QSplitter::splitterMoved, this, &SeparadorDePasos::recuerda);
}

void SeparadorDePasos::resizeEvent(QResizeEvent *suceso)
{
    acomoda();
    QSplitter::resizeEvent(suceso);
}

void SeparadorDePasos::acomoda()
{
    const int necesario =
        widget(0)->minimumSizeHint().width() + m_pasos->minimumSizeHint().width() + handleWidth();
    const Qt::Orientation conviene =
        width() >= std::max(AnchoParaDos, necesario) ? Qt::Horizontal : Qt::Vertical;
    if (m_acomodado && conviene == orientation())
        return;
    m_acomodado = true;
    setOrientation(conviene);
    const int parte =
        std::clamp(Sesión().recuerda(claveDeParte(conviene), ParteDePasos).toInt(), 5, 95);
    setSizes({100 * (100 - parte), 100 * parte});
}

void SeparadorDePasos::recuerda()
{
    const QList<int> tamanos = sizes();
    const int suma = tamanos.value(0) + tamanos.value(1);
    if (suma > 0)
        Sesión().anota(claveDeParte(orientation()), tamanos.value(1) * 100 / suma);
}
