// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/windows/FormRecursion1.h"

#include "lessons/complexity/CuestionesComplejidad.h"
#include "lessons/complexity/windows/FormRecursion1Arbol.h"
#include "lessons/complexity/windows/FormRecursion1Fibonacci.h"
#include "lessons/complexity/windows/FormRecursion1Hanoi.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/PanelCuestiones.h"
#include "shell/look/Imagenes.h"

using namespace Qt::Literals::StringLiterals;

FormRecursión1::FormRecursión1(QWidget *padre) : FormLeccion(u"Recursión1.html"_s, padre)
{
    setObjectName(u"FormRecursión1"_s);
    setWindowTitle(Traduce(u"Recursión y complejidad"_s));
    setWindowIcon(Icono(u"RECURSION"_s));
    agregaIntroduccion(u"Introducción"_s);
    auto *fibonacci = new FormRecursion1Fibonacci(this);
    auto *arbol = new FormRecursion1Arbol(this);
    auto *hanoi = new FormRecursion1Hanoi(this);
    agregaTema(u"Fibonacci"_s, u"fibonacci"_s, fibonacci, fibonacci->pasos());
    agregaTema(u"Árbol de llamadas"_s, u"arbol"_s, arbol, arbol->pasos());
    agregaTema(u"Torres de Hanói"_s, u"hanoi"_s, hanoi, hanoi->pasos());
    agregaTema(u"Cuestiones"_s, u"cuestiones"_s,
               new PanelCuestiones(sorteaLlamadas, sorteaHanoi, this));
}
