// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/windows/EscenasPracticas.h"

using namespace Qt::Literals::StringLiterals;

QList<Escena> escenasPracticas()
{
    const Gesto euclides{u"cmbLeccion"_s, u"Algoritmo de Euclides"_s};
    const Gesto comprueba{u"cmdComprobar"_s, {}};
    const Gesto pista{u"cmdPista"_s, {}};
    return {
        {u"practicas-practicar"_s, u"practicar"_s, {euclides, {u"txtRespuesta"_s, u"2³·"_s}}},
        {u"practicas-leida"_s, u"practicar"_s, {euclides, {u"txtRespuesta"_s, u"2³ · 5"_s}}},
        {u"practicas-fallada"_s,
         u"practicar"_s,
         {euclides, {u"txtRespuesta"_s, u"1"_s}, comprueba, pista, pista}},
        {u"practicas-solucion"_s, u"practicar"_s, {euclides, {u"cmdSolucion"_s, {}}}},
        {u"practicas-predecir"_s,
         u"practicar"_s,
         {{u"cmbLeccion"_s, u"Hoja de cálculo"_s},
          {u"cmbTipo"_s, u"La fórmula de una columna"_s},
          {u"cmdSolucion"_s, {}},
          {u"cmdPredecir"_s, {}},
          {u"cmdOcultarTodas"_s, {}},
          {u"FlexHuecos"_s, u"0,0:1"_s}}},
        {u"practicas-mapa"_s, u"mapa"_s},
        {u"practicas-historia"_s, u"historia"_s},
        {u"practicas-hojas"_s, u"hojas"_s, {{u"cmdCodigo"_s, {}}}},
        {u"practicas-hoja-en-marcha"_s, u"hojas"_s, {{u"cmdCodigo"_s, {}}, {u"cmdHacer"_s, {}}}},
        {u"practicas-clase"_s,
         u"historia"_s,
         {{u"txtAlumno"_s, u"Ana"_s},
          {u"cmdExportar"_s, {}},
          {u"tsTema"_s, u"clase"_s},
          {u"cmdCarpeta"_s, {}}}}};
}
