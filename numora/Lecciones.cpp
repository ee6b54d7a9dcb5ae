// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Lecciones.h"

#include "lessons/complexity/windows/EscenasRecursion1.h"
#include "lessons/complexity/windows/FormRecursion1.h"
#include "lessons/congruences/windows/EscenasTCR.h"
#include "lessons/congruences/windows/FormTCR.h"
#include "lessons/euclid/windows/EscenasEuclides.h"
#include "lessons/euclid/windows/FormEuclides.h"
#include "lessons/fibonacci/windows/EscenasFibonacci.h"
#include "lessons/fibonacci/windows/FormFibonacci.h"
#include "lessons/primes/windows/EscenasPrimos.h"
#include "lessons/primes/windows/FormPrimos.h"
#include "lessons/recursion/functions/windows/EscenasRecursion3.h"
#include "lessons/recursion/functions/windows/FormRecursion3.h"
#include "lessons/recursion/modular/windows/EscenasRecursion2.h"
#include "lessons/recursion/modular/windows/FormRecursion2.h"
#include "lessons/rsa/windows/EscenasRSA.h"
#include "lessons/rsa/windows/FormRSA.h"
#include "lessons/units/windows/EscenasUnidades.h"
#include "lessons/units/windows/FormUnidades.h"
#include "minical/windows/EscenasMiniCal.h"
#include "minical/windows/FormCalc.h"
#include "numora/TemasDePaginas.h"
#include "practice/progress/Curso.h"
#include "practice/windows/EscenasPracticas.h"
#include "practice/windows/FormPracticas.h"

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Ventana>
FormLeccion *crea(QWidget *padre)
{
    return new Ventana(padre);
}

VentanaDePracticas practicas()
{
    return {{u"COMPROBAR"_s, u"Prácticas"_s, crea<FormPracticas>,
             u"Ejercicios de todas las lecciones, con pistas, soluciones y repasos."_s,
             escenasPracticas},
            [](FormLeccion &ventana, const QString &clave, int nivel) {
                return static_cast<FormPracticas &>(ventana).practica(clave, nivel);
            },
            &FormPracticas::invitacion};
}

/// Where the lessons stand in the course, and what they build on.
void ponCurso(QList<Leccion> &lecciones)
{
    for (Leccion &leccion : lecciones) {
        const LeccionDelCurso *suya = leccionDelCurso(leccion.palabra);
        if (!suya)
            continue;
        leccion.orden = static_cast<int>(suya - curso().constData()) + 1;
        for (const QString &clave : suya->antes)
            leccion.antes << leccionDelCurso(clave)->titulo;
    }
}

} // namespace

Contenido contenidoDelPrograma()
{
    Contenido contenido;
    contenido.lecciones = {
        {u"FIBONACCI"_s, u"Fibonacci"_s, crea<FormFibonacci>,
         u"La sucesión, su razón áurea y sus identidades, calculadas de tres maneras."_s,
         escenasFibonacci},
        {u"EUCLIDES"_s, u"Algoritmo de Euclides"_s, crea<FormEuclides>,
         u"El máximo común divisor paso a paso, y las ecuaciones diofánticas lineales."_s,
         escenasEuclides},
        {u"PRIMOS"_s, u"Primos"_s, crea<FormPrimos>,
         u"Reconocer números primos, cribarlos y descomponer en factores."_s, escenasPrimos},
        {u"UNIDADES"_s, u"Unidades"_s, crea<FormUnidades>,
         u"Los elementos invertibles de Zₙ, sus órdenes y la función de Euler."_s, escenasUnidades},
        {u"RSA"_s, u"Criptografía RSA"_s, crea<FormRSA>,
         u"Crear claves, cifrar textos e intercambiar mensajes secretos."_s, escenasRSA},
        {u"TCR"_s, u"Teorema chino del resto"_s, crea<FormTCR>,
         u"Hallar el número que deja los restos pedidos al dividirlo por varios módulos."_s,
         escenasTCR},
        {u"RECURSION"_s, u"Recursión y complejidad"_s, crea<FormRecursión1>,
         u"Lo que cuesta llamarse a sí mismo: llamadas, tiempos y torres de Hanói."_s,
         escenasRecursion1},
        {u"RECURMOD"_s, u"Recursión modular"_s, crea<FormRecursión2>,
         u"Sucesiones definidas módulo m y el periodo con el que se repiten."_s, escenasRecursion2},
        {u"FUNREC"_s, u"Funciones recursivas"_s, crea<FormRecursión3>,
         u"La función de Ackermann, los números del granizo y los capicúas."_s, escenasRecursion3}};
    contenido.hojaDeCalculo = {
        u"HOJACALCULO"_s, u"Hoja de cálculo"_s, crea<FormCalc>, {}, escenasMiniCal};
    contenido.practicas = practicas();
    ponTemasDePaginas(contenido);
    ponCurso(contenido.lecciones);
    return contenido;
}
