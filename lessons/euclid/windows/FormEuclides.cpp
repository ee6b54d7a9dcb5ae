// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/windows/FormEuclides.h"

#include "lessons/euclid/windows/FormEuclidesCuestiones.h"
#include "lessons/euclid/windows/FormEuclidesDiofantica.h"
#include "lessons/euclid/windows/FormEuclidesTabla.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Imagenes.h"

using namespace Qt::Literals::StringLiterals;

FormEuclides::FormEuclides(QWidget *padre)
    : FormLeccion(u"Euclides.html"_s, padre), m_tabla(new FormEuclidesTabla(this))
{
    setObjectName(u"FormEuclides"_s);
    setWindowTitle(Traduce(u"Euclides"_s));
    setWindowIcon(Icono(u"EUCLIDES"_s));
    agregaIntroduccion(u"Introducción"_s);
    agregaTema(u"Algoritmo de Euclides"_s, u"euclides"_s, m_tabla, m_tabla->pasos());
    auto *ecuacion = new FormEuclidesDiofantica(this);
    agregaTema(u"Ecuación diofántica"_s, u"diofantica"_s, ecuacion, ecuacion->pasos());
    agregaTema(u"Cuestiones"_s, u"cuestiones"_s, new FormEuclidesCuestiones(this));
}

bool FormEuclides::RestosReducidos() const
{
    return m_tabla->RestosReducidos();
}

void FormEuclides::ponRestosReducidos(bool reducidos)
{
    m_tabla->ponRestosReducidos(reducidos);
}
