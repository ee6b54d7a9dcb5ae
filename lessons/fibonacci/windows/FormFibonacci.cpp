// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/windows/FormFibonacci.h"

#include "lessons/fibonacci/CuestionesFibonacci.h"
#include "lessons/fibonacci/windows/FormFibonacciAureo.h"
#include "lessons/fibonacci/windows/FormFibonacciIdentidades.h"
#include "lessons/fibonacci/windows/FormFibonacciValores.h"
#include "lessons/fibonacci/windows/FormFibonacciZeckendorf.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/PanelCuestiones.h"
#include "shell/look/Imagenes.h"

using namespace Qt::Literals::StringLiterals;

FormFibonacci::FormFibonacci(QWidget *padre) : FormLeccion(u"Fibonacci.html"_s, padre)
{
    setObjectName(u"FormFibonacci"_s);
    setWindowTitle(Traduce(u"Fibonacci"_s));
    setWindowIcon(Icono(u"FIBONACCI"_s));
    auto *valores = new FormFibonacciValores(this);
    auto *aureo = new FormFibonacciAureo(this);
    auto *zeckendorf = new FormFibonacciZeckendorf(this);
    auto *identidades = new FormFibonacciIdentidades(this);
    agregaIntroduccion(u"Introducción"_s);
    agregaTema(u"Valores"_s, u"valores"_s, valores, valores->pasos());
    agregaTema(u"Número áureo"_s, u"aureo"_s, aureo, aureo->pasos());
    agregaTema(u"Zeckendorf"_s, u"zeckendorf"_s, zeckendorf, zeckendorf->pasos());
    agregaTema(u"Identidades"_s, u"identidades"_s, identidades, identidades->pasos());
    agregaTema(u"Cuestiones"_s, u"cuestiones"_s,
               new PanelCuestiones(sorteaZeckendorf, sorteaMcd, this));
}
