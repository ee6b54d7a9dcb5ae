#include "lessons/primes/windows/FormPrimos.h"

#include "lessons/primes/windows/FormPrimosCriba.h"
#include "lessons/primes/windows/FormPrimosCuestiones.h"
#include "lessons/primes/windows/FormPrimosFactorizacion.h"
#include "lessons/primes/windows/FormPrimosTest.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Imagenes.h"

using namespace Qt::Literals::StringLiterals;

FormPrimos::FormPrimos(QWidget *padre)
    : FormLeccion(u"Primos.html"_s, padre),
      m_criba(new FormPrimosCriba(this)),
      m_factorizacion(new FormPrimosFactorizacion(this))
{
    setObjectName(u"FormPrimos"_s);
    setWindowTitle(Traduce(u"Primos"_s));
    setWindowIcon(Icono(u"PRIMOS"_s));
    agregaIntroduccion(u"Introducción"_s);
    agregaTema(u"Criba de Eratóstenes"_s, u"criba"_s, m_criba);
    agregaTema(u"Test de primos"_s, u"test"_s, new FormPrimosTest(this));
    agregaTema(u"Factorización"_s, u"factorizacion"_s, m_factorizacion);
    agregaTema(u"Cuestiones"_s, u"cuestiones"_s, new FormPrimosCuestiones(this));
    // The time of a factorization stands in the panel of the sieve as well, to be compared.
    connect(m_factorizacion, &FormPrimosFactorizacion::tiempoMedido, m_criba,
            &FormPrimosCriba::muestraTiempo);
}

QAbstractButton *FormPrimos::botonDeParada() const
{
    // One run may have been started inside the other: then it is the one in sight that is meant.
    QAbstractButton *criba = m_criba->botonDeParada();
    QAbstractButton *factorizacion = m_factorizacion->botonDeParada();
    return factorizacion && (!criba || m_factorizacion->isVisible()) ? factorizacion : criba;
}
