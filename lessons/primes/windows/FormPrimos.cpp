// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimos.h"

#include "lessons/primes/windows/FormPrimosCriba.h"
#include "lessons/primes/windows/FormPrimosCuestiones.h"
#include "lessons/primes/windows/FormPrimosFactorizacion.h"
#include "lessons/primes/windows/FormPrimosTest.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Imagenes.h"

using namespace Qt::Literals::StringLiterals;

FormPrimos::FormPrimos(QWidget *padre) : FormLeccion(u"Primos.html"_s, padre)
{
    auto *criba = new FormPrimosCriba(this);
    auto *factorizacion = new FormPrimosFactorizacion(this);
    setObjectName(u"FormPrimos"_s);
    setWindowTitle(Traduce(u"Primos"_s));
    setWindowIcon(Icono(u"PRIMOS"_s));
    agregaIntroduccion(u"Introducción"_s);
    agregaTema(u"Criba de Eratóstenes"_s, u"criba"_s, criba);
    agregaTema(u"Test de primos"_s, u"test"_s, new FormPrimosTest(this));
    agregaTema(u"Factorización"_s, u"factorizacion"_s, factorizacion);
    agregaTema(u"Cuestiones"_s, u"cuestiones"_s, new FormPrimosCuestiones(this));
    // The time of a factorization stands in the panel of the sieve as well, to be compared.
    connect(factorizacion, &FormPrimosFactorizacion::tiempoMedido, criba,
            &FormPrimosCriba::muestraTiempo);
}
