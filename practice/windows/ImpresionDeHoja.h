// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/sheets/CodigoDeHoja.h"

#include <QByteArray>

class QPrinter;

/// Prints a sheet, with answers and worked solutions behind it where asked for.
void imprimeHojaDeEjercicios(QPrinter &impresora, const EncargoDeHoja &encargo, bool conSoluciones);

/// The same as a page of HTML that needs nothing beside it, its drawings in it.
QByteArray hojaEnPagina(const EncargoDeHoja &encargo, bool conSoluciones);

/// The same as a PDF file of pages of A4.
QByteArray hojaEnPdf(const EncargoDeHoja &encargo, bool conSoluciones);
