// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/windows/EscenasUnidades.h"

using namespace Qt::Literals::StringLiterals;

QList<Escena> escenasUnidades()
{
    const QString unidades = u"unidades"_s, cayley = u"cayley"_s, grandes = u"grandes"_s,
                  cuestiones = u"cuestiones"_s;
    const auto grupo = [](const QString &n, const QString &a) {
        return QList<Gesto>{
            {u"txtN"_s, n}, {u"cmdUnidades"_s, {}}, {u"txtElemento"_s, a}, {u"cmdPotencias"_s, {}}};
    };
    const auto tabla = [](const QString &n, const QString &operacion) {
        return QList<Gesto>{{u"txtNCayley"_s, n}, {operacion, {}}};
    };
    const auto grande = [](const QString &n, const QString &a) {
        return QList<Gesto>{{u"txtNGrande"_s, n},
                            {u"txtAGrande"_s, a},
                            {u"cmdInverso"_s, {}},
                            {u"cmdFi"_s, {}},
                            {u"cmdFactores"_s, {}}};
    };
    const Gesto pasos{u"cmdTodosLosPasos"_s, {}};
    return {{u"unidades-introduccion"_s, u"intro"_s},
            {u"unidades-grupo"_s, unidades},
            {u"unidades-grupo-vacio"_s, unidades, grupo(QString(), QString())},
            {u"unidades-grupo-ciclico"_s, unidades, grupo(u"2*3^6"_s, u"5"_s)},
            {u"unidades-grupo-no-unidad"_s, unidades, grupo(u"360"_s, u"14"_s)},
            {u"unidades-grupo-pasos"_s, unidades, {pasos}},
            {u"unidades-elemento-pasos"_s, unidades,
             grupo(u"14"_s, u"3"_s) + QList<Gesto>{pasos, {u"listaDePasos"_s, u"4,0"_s}}},
            {u"unidades-cayley"_s, cayley},
            {u"unidades-cayley-grande"_s, cayley, tabla(u"59"_s, u"OptOperacion_0"_s)},
            {u"unidades-cayley-producto"_s, cayley, tabla(u"12"_s, u"OptOperacion_1"_s)},
            {u"unidades-cayley-suma"_s, cayley, tabla(u"24"_s, u"OptOperacion_2"_s)},
            {u"unidades-grandes-vacio"_s, grandes},
            {u"unidades-grandes"_s, grandes, grande(u"100!"_s, u"2^521-1"_s)},
            {u"unidades-grandes-sin-inverso"_s, grandes, grande(u"10^60-1"_s, u"10^30-1"_s)},
            {u"unidades-grandes-pasos"_s,
             grandes,
             {{u"txtNGrande"_s, u"2^89-1"_s},
              {u"txtAGrande"_s, u"10^20"_s},
              {u"cmdInverso"_s, {}},
              pasos}},
            {u"unidades-grandes-predecir"_s,
             grandes,
             {{u"txtNGrande"_s, u"97"_s},
              {u"txtAGrande"_s, u"35"_s},
              {u"cmdInverso"_s, {}},
              pasos,
              {u"listaDePasos"_s, u"6,0"_s},
              {u"cmdPredecir"_s, {}},
              {u"cmdOcultarTodas"_s, {}},
              {u"FlexHuecos"_s, u"0,2:2"_s},
              {u"FlexHuecos"_s, u"0,3:25"_s}}},
            {u"unidades-cuestiones"_s, cuestiones},
            {u"unidades-cuestiones-fallo"_s,
             cuestiones,
             {{u"txtRespuesta_0"_s, u"0"_s},
              {u"cmdComprobar_0"_s, {}},
              {u"txtRespuesta_1"_s, u"0"_s},
              {u"cmdComprobar_1"_s, {}}}}};
}
