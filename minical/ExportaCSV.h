#pragma once

#include <QByteArray>
#include <QChar>

class HojaDeCalculo;

/// The results of a sheet as CSV, from A1 to the last row and column that hold anything. `signo` is
/// the decimal sign, "," or "."; cells are separated by ";" beside the comma and by "," beside the
/// point.
QByteArray csvDeHoja(const HojaDeCalculo &hoja, QChar signo);
