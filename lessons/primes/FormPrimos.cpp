#include "lessons/primes/FormPrimos.h"

#include "lessons/primes/FormPrimosTest.h"
#include "shell/Imagenes.h"
#include "shell/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

FormPrimos::FormPrimos(QWidget *padre) : FormLeccion(u"Primos.html"_s, padre)
{
    setObjectName(u"FormPrimos"_s);
    setWindowTitle(Traduce(u"Primos"_s));
    setWindowIcon(Icono(u"PRIMOS"_s));
    agregaIntroduccion(u"Introducción"_s);
    agregaTema(u"Test de primos"_s, u"test"_s, new FormPrimosTest(this));
}
