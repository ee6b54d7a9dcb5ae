// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/HojaDeCalculo.h"

/// A data cell by its name.
inline Celda en(QStringView nombre)
{
    return celdaDeNombre(nombre).value();
}

/// Enters an expression and gives what the cell then shows.
inline QString entra(HojaDeCalculo &hoja, QStringView nombre, const QString &expresion)
{
    hoja.finDeEdicion(en(nombre), expresion);
    return hoja.texto(en(nombre));
}

inline QString resultado(const HojaDeCalculo &hoja, QStringView nombre)
{
    const Celda celda = en(nombre);
    return hoja.Resultados(celda.fila, celda.columna);
}

/// A sheet in which some expressions have been entered, in their order.
struct HojaCon : HojaDeCalculo
{
    HojaCon(std::initializer_list<std::pair<const char16_t *, const char16_t *>> expresiones)
    {
        for (const auto &[nombre, expresion] : expresiones)
            entra(*this, nombre, QString::fromUtf16(expresion));
    }
};
