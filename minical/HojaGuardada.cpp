// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/HojaGuardada.h"

#include "minical/HojaDeCalculo.h"

namespace {

CeldaGuardada guardada(const HojaDeCalculo &hoja, Celda celda)
{
    return {celda, hoja.Expresiones(celda.fila, celda.columna),
            hoja.Resultados(celda.fila, celda.columna), std::nullopt};
}

} // namespace

HojaGuardada contenidoDe(const HojaDeCalculo &hoja)
{
    HojaGuardada contenido;
    const ColVariables &variables = hoja.Variables();
    for (const auto &[orden, variable] : variables) {
        CeldaGuardada celda = guardada(hoja, celdaDeNombre(variable.Nombre()).value());
        celda.valor = variable.Valor().sliced(1, variable.Valor().size() - 2);
        contenido.celdas << celda;
    }
    for (int fila = 1; fila < Celda::Filas; ++fila) {
        for (int columna = 1; columna < Celda::Columnas; ++columna) {
            const CeldaGuardada celda = guardada(hoja, {fila, columna});
            if (variables.busca(NombreCelda(celda.celda)) == variables.end() &&
                !celda.expresion.isEmpty())
                contenido.celdas << celda;
        }
    }
    return contenido;
}
