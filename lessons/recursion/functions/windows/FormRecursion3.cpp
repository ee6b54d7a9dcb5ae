// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/windows/FormRecursion3.h"

#include "lessons/recursion/functions/windows/FormRecursion3Ackermann.h"
#include "lessons/recursion/functions/windows/FormRecursion3Capicuas.h"
#include "lessons/recursion/functions/windows/FormRecursion3Hailstone.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/RotulosEnteros.h"
#include "shell/steps/PanelDePasos.h"

#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

FormRecursión3::FormRecursión3(QWidget *padre)
    : FormLeccion(u"Recursión3.html"_s, padre),
      m_pestanas(new QTabWidget(this)),
      m_panelDePasos(new PanelDePasos(u"Funciones recursivas"_s, this))
{
    setObjectName(u"FormRecursión3"_s);
    setWindowTitle(Traduce(u"Funciones recursivas"_s));
    setWindowIcon(Icono(u"FUNREC"_s));
    auto *panel = new QWidget(this);
    m_pestanas->setObjectName(u"SSTab1"_s);
    // Tabs within a topic: without a frame of their own, which would stand in the frame of the
    // topic.
    m_pestanas->setDocumentMode(true);
    m_pestanas->setAccessibleName(Traduce(u"Funciones"_s));
    m_pestanas->tabBar()->setAccessibleName(m_pestanas->accessibleName());
    mantieneEnteras(m_pestanas);
    agregaFicha(new FormRecursion3Ackermann(parada(), m_pestanas), u"Ackermann"_s);
    agregaFicha(new FormRecursion3Hailstone(parada(), m_pestanas), u"Hailstone"_s);
    agregaFicha(new FormRecursion3Capicuas(parada(), m_pestanas), u"Capicúas"_s);
    conecta(m_pestanas, &QTabWidget::currentChanged, this, &FormRecursión3::SSTab1_Click);

    auto *marco = new QVBoxLayout(panel);
    marco->setContentsMargins(0, Aspecto::Espacio, 0, 0);
    marco->addWidget(m_pestanas);
    agregaIntroduccion(u"Introducción"_s);
    agregaTema(u"Funciones"_s, u"funciones"_s, panel, m_panelDePasos);
}

template <typename Ficha>
void FormRecursión3::agregaFicha(Ficha *ficha, const QString &rotulo)
{
    const int indice = m_pestanas->addTab(ficha, Traduce(rotulo));
    conecta(ficha, &Ficha::hayPasos, this,
            [this, indice](const Pasos &pasos) { ponPasos(indice, pasos); });
}

/// A tab behind keeps its steps until it comes to the front: a run that ends there must not take
/// away what is being read.
void FormRecursión3::ponPasos(int ficha, const Pasos &pasos)
{
    m_pasos.at(static_cast<std::size_t>(ficha)) = pasos;
    if (ficha == m_pestanas->currentIndex())
        m_panelDePasos->pon(pasos);
}

void FormRecursión3::SSTab1_Click(int ficha)
{
    m_panelDePasos->pon(m_pasos.at(static_cast<std::size_t>(ficha)));
}
