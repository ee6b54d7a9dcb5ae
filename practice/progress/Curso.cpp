// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/progress/Curso.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

const QList<LeccionDelCurso> &curso()
{
    static const QList<LeccionDelCurso> lecciones{
        {u"minical"_s, u"Hoja de cálculo"_s, {}, {1, 2}},
        {u"fibonacci"_s, u"Fibonacci"_s, {}, {0, 0}},
        {u"euclides"_s, u"Algoritmo de Euclides"_s, {u"fibonacci"_s}, {1, 0}},
        {u"primos"_s, u"Primos"_s, {u"euclides"_s}, {2, 0}},
        {u"unidades"_s, u"Unidades"_s, {u"euclides"_s, u"primos"_s}, {3, 0}},
        {u"congruencias"_s, u"Teorema chino del resto"_s, {u"euclides"_s, u"unidades"_s}, {3, 1}},
        {u"rsa"_s, u"Criptografía RSA"_s, {u"primos"_s, u"unidades"_s, u"congruencias"_s}, {2, 2}},
        {u"complejidad"_s, u"Recursión y complejidad"_s, {u"fibonacci"_s}, {0, 1}},
        {u"modular"_s,
         u"Recursión modular"_s,
         {u"fibonacci"_s, u"unidades"_s, u"congruencias"_s},
         {3, 2}},
        {u"funciones"_s, u"Funciones recursivas"_s, {u"complejidad"_s}, {0, 2}}};
    return lecciones;
}

const LeccionDelCurso *leccionDelCurso(const QString &clave)
{
    const auto &todas = curso();
    const auto hallada =
        std::find_if(todas.begin(), todas.end(),
                     [&](const LeccionDelCurso &leccion) { return leccion.clave == clave; });
    return hallada == todas.end() ? nullptr : &*hallada;
}
