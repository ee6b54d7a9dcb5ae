// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class HojaDeCalculo;
class QPrinter;

/// Prints every cell that holds anything, with its expression and its whole result; each page bears
/// the title and its number. False when the printer takes nothing.
bool imprimeHoja(QPrinter &impresora, const HojaDeCalculo &hoja, const QString &titulo);
