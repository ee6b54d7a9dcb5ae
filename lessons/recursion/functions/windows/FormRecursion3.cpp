// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/windows/FormRecursion3.h"

#include "lessons/recursion/functions/windows/FormRecursion3Ackermann.h"
#include "lessons/recursion/functions/windows/FormRecursion3Capicuas.h"
#include "lessons/recursion/functions/windows/FormRecursion3Hailstone.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"

#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

FormRecursión3::FormRecursión3(QWidget *padre) : FormLeccion(u"Recursión3.html"_s, padre)
{
    setObjectName(u"FormRecursión3"_s);
    setWindowTitle(Traduce(u"Funciones recursivas"_s));
    setWindowIcon(Icono(u"FUNREC"_s));
    auto *panel = new QWidget(this);
    auto *pestanas = new QTabWidget(panel);
    pestanas->setObjectName(u"SSTab1"_s);
    // Tabs within a topic: without a frame of their own, which would stand in the frame of the
    // topic.
    pestanas->setDocumentMode(true);
    pestanas->setAccessibleName(Traduce(u"Funciones"_s));
    pestanas->tabBar()->setAccessibleName(pestanas->accessibleName());
    pestanas->addTab(new FormRecursion3Ackermann(parada(), pestanas), Traduce(u"Ackermann"_s));
    pestanas->addTab(new FormRecursion3Hailstone(parada(), pestanas), Traduce(u"Hailstone"_s));
    pestanas->addTab(new FormRecursion3Capicuas(parada(), pestanas), Traduce(u"Capicúas"_s));

    auto *marco = new QVBoxLayout(panel);
    marco->setContentsMargins(0, Aspecto::Espacio, 0, 0);
    marco->addWidget(pestanas);
    agregaIntroduccion(u"Introducción"_s);
    agregaTema(u"Funciones"_s, u"funciones"_s, panel);
}
