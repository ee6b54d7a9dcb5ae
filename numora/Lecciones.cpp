#include "numora/Lecciones.h"

#include "lessons/primes/EscenasPrimos.h"
#include "lessons/primes/FormPrimos.h"
#include "lessons/rsa/EscenasRSA.h"
#include "lessons/rsa/FormRSA.h"

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Ventana>
FormLeccion *crea(QWidget *padre)
{
    return new Ventana(padre);
}

} // namespace

Contenido contenidoDelPrograma()
{
    Contenido contenido;
    contenido.lecciones = {{u"FIBONACCI"_s, u"Fibonacci"_s, {}},
                           {u"EUCLIDES"_s, u"Algoritmo de Euclides"_s, {}},
                           {u"PRIMOS"_s, u"Primos"_s, crea<FormPrimos>},
                           {u"UNIDADES"_s, u"Unidades"_s, {}},
                           {u"RSA"_s, u"Criptografía RSA"_s, crea<FormRSA>},
                           {u"TCR"_s, u"Teorema chino del resto"_s, {}},
                           {u"RECURSION"_s, u"Recursión y complejidad"_s, {}},
                           {u"RECURMOD"_s, u"Recursión modular"_s, {}},
                           {u"FUNREC"_s, u"Funciones recursivas"_s, {}}};
    contenido.hojaDeCalculo = {u"HOJACALCULO"_s, u"Hoja de cálculo"_s, {}};
    contenido.escenas = escenasPrimos(2);
    contenido.escenas += escenasRSA(4);
    return contenido;
}
