// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"

#include <QString>
#include <chrono>

/// What parts thousands wherever the program shows a number: the sign of the system's locale, but a
/// narrow blank where that is the comma, which is the program's decimal sign: "1,028,457" never
/// stands beside "1,21 ms".
QString separadorDeMillares();

/// A whole number with separators of thousands, as the pattern "#,###,###,##0" shows it.
QString formatoEntero(qint64 valor);
/// The same for a fixed-point number, rounded to whole units (half away from zero).
QString formatoEntero(Moneda valor);
/// The same for a number of any size given by its decimal digits; other texts come back unchanged.
QString formatoEntero(const QString &digitos);

/// A number of any size as it fits a line: one of more than 24 digits by its ends and how many it
/// has, "123456…654321 (157 cifras)", any other as formatoEntero.
QString formatoAbreviado(const QString &digitos);

/// The digits, and the sign, of a number as an exponent: "⁻¹²".
QString enSuperindice(const QString &numero);

/// A number with so many decimals, 0 or more, rounded: the whole part as above, and a decimal comma
/// whatever the system's locale.
QString formatoDecimal(double valor, int decimales);

/// A span of time as "hh:nn:ss"; hours start again after 24.
QString formatoTiempo(std::chrono::milliseconds tiempo);

/// A span of time in the unit that suits it, with three significant digits: "3,12 µs".
QString textoDeDuracion(double nanosegundos);
