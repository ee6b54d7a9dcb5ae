#pragma once

#include <QStringList>

class HojaDeCalculo;

/// A sheet as lines for a printer, of at most `ancho` characters (20 or more) each: cell by cell,
/// row by row, the name with its expression, and below it the whole result, however many lines it
/// takes.
QStringList lineasDeHoja(const HojaDeCalculo &hoja, int ancho);
