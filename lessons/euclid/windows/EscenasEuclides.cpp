// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/windows/EscenasEuclides.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QList<Gesto> ecuacion(const QString &a, const QString &b, const QString &c)
{
    return {{u"txtNº_0"_s, a}, {u"txtNº_1"_s, b}, {u"txtNº_2"_s, c}};
}

QList<Gesto> respuesta(const QString &a, const QString &b, const QString &n)
{
    return {{u"txtP1_0"_s, a}, {u"txtP1_1"_s, b}, {u"TxtN"_s, n}, {u"cmdProblema"_s, {}}};
}

} // namespace

QList<Escena> escenasEuclides()
{
    const QString tabla = u"euclides"_s, ecuaciones = u"diofantica"_s, cuestiones = u"cuestiones"_s;
    const Gesto pasos{u"cmdTodosLosPasos"_s, {}};
    return {
        {u"euclides-introduccion"_s, u"intro"_s},
        {u"euclides-tabla"_s, tabla},
        {u"euclides-tabla-reducidos"_s,
         tabla,
         {{u"StatusBar_1"_s, {}}, {u"FlexEuclides"_s, u"0,2:46"_s}}},
        {u"euclides-tabla-grande"_s,
         tabla,
         {{u"FlexEuclides"_s, u"0,1:922337203685477"_s},
          {u"FlexEuclides"_s, u"0,2:570035741062561"_s}}},
        {u"euclides-tabla-pasos"_s, tabla, {pasos, {u"listaDePasos"_s, u"5,0"_s}}},
        {u"euclides-tabla-pasos-reducidos"_s,
         tabla,
         {{u"StatusBar_1"_s, {}},
          {u"FlexEuclides"_s, u"0,2:46"_s},
          pasos,
          {u"listaDePasos"_s, u"3,0"_s}}},
        {u"euclides-tabla-rellenar"_s,
         tabla,
         {{u"cmdRellenar"_s, {}},
          {u"cmdOcultarTodas"_s, {}},
          {u"FlexHuecos"_s, u"0,3:5"_s},
          {u"FlexHuecos"_s, u"0,4:10"_s},
          {u"FlexHuecos"_s, u"0,5:1"_s},
          {u"FlexHuecos"_s, u"0,6:5"_s}}},
        {u"euclides-tabla-rellenar-porque"_s,
         tabla,
         {{u"cmdRellenar"_s, {}}, {u"FlexHuecos"_s, u"2,6"_s}, {u"cmdPorQue"_s, {}}}},
        {u"euclides-tabla-rechazada"_s, tabla, {{u"FlexEuclides"_s, u"0,2:25/2"_s}}},
        {u"euclides-ecuacion-vacia"_s, ecuaciones},
        {u"euclides-ecuacion"_s, ecuaciones, ecuacion(u"6"_s, u"10"_s, u"100"_s)},
        {u"euclides-ecuacion-muchas"_s, ecuaciones, ecuacion(u"1"_s, u"1"_s, u"10^12"_s)},
        {u"euclides-ecuacion-sin"_s, ecuaciones, ecuacion(u"5"_s, u"10"_s, u"3"_s)},
        {u"euclides-ecuacion-pasos"_s, ecuaciones,
         ecuacion(u"6"_s, u"10"_s, u"100"_s) + QList<Gesto>{pasos, {u"listaDePasos"_s, u"6,0"_s}}},
        {u"euclides-ecuacion-pasos-sin"_s, ecuaciones,
         ecuacion(u"6"_s, u"10"_s, u"14"_s) + QList<Gesto>{pasos, {u"listaDePasos"_s, u"6,0"_s}}},
        {u"euclides-cuestiones"_s, cuestiones},
        {u"euclides-cuestiones-faltan"_s, cuestiones, respuesta(u"34"_s, u"0"_s, QString())},
        {u"euclides-cuestiones-acierto"_s, cuestiones, respuesta(u"34"_s, u"21"_s, u"7"_s)},
        {u"euclides-cuestiones-fallo"_s, cuestiones, respuesta(u"21"_s, u"34"_s, u"7"_s)}};
}
