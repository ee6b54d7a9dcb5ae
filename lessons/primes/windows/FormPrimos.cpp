// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimos.h"

#include "lessons/primes/windows/FormPrimosCoste.h"
#include "lessons/primes/windows/FormPrimosCriba.h"
#include "lessons/primes/windows/FormPrimosCuestiones.h"
#include "lessons/primes/windows/FormPrimosFactorizacion.h"
#include "lessons/primes/windows/FormPrimosTest.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/RotulosEnteros.h"

#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

FormPrimos::FormPrimos(QWidget *padre) : FormLeccion(u"Primos.html"_s, padre)
{
    auto *criba = new FormPrimosCriba(this);
    auto *factorizacion = new FormPrimosFactorizacion(this);
    setObjectName(u"FormPrimos"_s);
    setWindowTitle(Traduce(u"Primos"_s));
    setWindowIcon(Icono(u"PRIMOS"_s));
    agregaIntroduccion(u"Introducción"_s);
    auto *test = new FormPrimosTest(this);
    agregaTema(u"Criba de Eratóstenes"_s, u"criba"_s, criba, criba->pasos());
    agregaTema(u"Test de primos"_s, u"test"_s, test, test->pasos());
    agregaTema(u"Factorización"_s, u"factorizacion"_s, conExperimento(factorizacion),
               factorizacion->pasos());
    agregaTema(u"Cuestiones"_s, u"cuestiones"_s, new FormPrimosCuestiones(this));
    // The time of a factorization stands in the panel of the sieve as well, to be compared.
    connect(factorizacion, &FormPrimosFactorizacion::tiempoMedido, criba,
            &FormPrimosCriba::muestraTiempo);
}

/// The tool and, behind it in a tab of its own, the experiment on what factoring costs.
QWidget *FormPrimos::conExperimento(QWidget *factorizacion)
{
    auto *fichas = new QTabWidget(this);
    mantieneEnteras(fichas);
    fichas->setObjectName(u"FichasDeFactorizacion"_s);
    fichas->setDocumentMode(true);
    fichas->setAccessibleName(Traduce(u"Partes de la factorización"_s));
    fichas->tabBar()->setAccessibleName(fichas->accessibleName());
    fichas->addTab(factorizacion, Traduce(u"Descomponer"_s));
    fichas->addTab(new FormPrimosCoste(this), Traduce(u"Cómo crece el coste"_s));
    auto *panel = new QWidget(this);
    auto *marco = new QVBoxLayout(panel);
    marco->setContentsMargins(0, Aspecto::Espacio / 2, 0, 0);
    marco->addWidget(fichas);
    return panel;
}
