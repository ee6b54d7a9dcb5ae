// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"
#include "practice/sheets/CodigoDeHoja.h"

#include <QSize>

/// One exercise of a sheet.
struct EjercicioDeHoja
{
    const TipoDeEjercicio *tipo = nullptr; ///< of the bank
    int nivel = 1;
    Ejercicio ejercicio;
};

/// The exercises of a sheet, in the interface's language; with the same order the same ones,
/// wherever and whenever. `encargo` is one that a code can ask for.
QList<EjercicioDeHoja> ejerciciosDeHoja(const EncargoDeHoja &encargo);

/// What stands over a sheet: "Algoritmo de Euclides, nivel 2".
QString tituloDeHoja(const EncargoDeHoja &encargo);

/// A drawing of a solution as it stands in a page.
struct ImagenDePagina
{
    QByteArray png;
    QSize tamano; ///< in which it is shown, in pixels of a page
};
using PintaImagen = std::function<ImagenDePagina(const Lamina &)>;

/// A sheet as a page of HTML that needs nothing beside it: the statements with room for answers,
/// and after them, where asked for, on a page of its own the answers and the worked solutions, with
/// drawings where somebody paints them.
QString hojaEnHtml(const EncargoDeHoja &encargo, bool conSoluciones, const PintaImagen &pinta = {});
