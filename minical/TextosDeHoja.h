// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/Celda.h"

#include <QByteArray>
#include <QChar>
#include <QList>
#include <QStringList>

class HojaDeCalculo;

// A sheet, or cells of it, as text: for other programs, for paper, to and from the clipboard.

/// The results of a sheet as CSV, from A1 to the last row and column that hold anything. `signo` is
/// the decimal sign, "," or "."; cells are separated by ";" beside the comma and by "," beside the
/// point.
QByteArray csvDeHoja(const HojaDeCalculo &hoja, QChar signo);

/// A sheet as lines for a printer, of at most `ancho` characters (20 or more) each: cell by cell,
/// row by row, the name with its expression, and below it the whole result, however many lines it
/// takes, unless it reads as the expression does. Blank expressions are left out.
QStringList lineasDeHoja(const HojaDeCalculo &hoja, int ancho);

/// The expressions or the results of cells that are given row by row: one cell as it is, several as
/// lines with tabs, as every spreadsheet takes them.
QString textoDeCeldas(const HojaDeCalculo &hoja, const QList<Celda> &celdas, bool expresiones);

/// What is entered when a text is pasted onto cells that are given row by row: one value goes into
/// each of them; a block stays as it is.
QList<QStringList> bloqueParaPegar(const QString &texto, const QList<Celda> &elegidas);
