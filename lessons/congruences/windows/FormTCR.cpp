// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/congruences/windows/FormTCR.h"

#include "lessons/congruences/windows/FormTCRSistema.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Imagenes.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

FormTCR::FormTCR(QWidget *padre) : FormLeccion(u"TCR.html"_s, padre)
{
    setObjectName(u"FormTCR"_s);
    setWindowTitle(Traduce(u"Teorema chino del resto"_s));
    setWindowIcon(Icono(u"TCR"_s));
    agregaIntroduccion(u"Introducción"_s);
    auto *sistema = new FormTCRSistema(this);
    agregaTema(u"Sistemas de congruencias"_s, u"sistemas"_s, sistema, sistema->pasos());

    // The window's timer has nothing to do on its ticks.
    auto *timer = new QTimer(this);
    timer->setObjectName(u"TimerTCR"_s);
}
