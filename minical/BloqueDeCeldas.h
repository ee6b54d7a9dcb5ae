#pragma once

#include "minical/Celda.h"

#include <QList>
#include <QStringList>

class HojaDeCalculo;

// Blocks of cells on their way to and from the clipboard.

/// The expressions or the results of cells that are given row by row: one cell as it is, several as
/// lines with tabs, as every spreadsheet takes them.
QString textoDeCeldas(const HojaDeCalculo &hoja, const QList<Celda> &celdas, bool expresiones);

/// What is entered when a text is pasted onto cells that are given row by row: one value goes into
/// each of them; a block stays as it is.
QList<QStringList> bloqueParaPegar(const QString &texto, const QList<Celda> &elegidas);
