// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"
#include "shell/core/clsSesion.h"

#include <QString>
#include <cstdint>

/// The language of the interface: the name of the section of Numora.txt that `Traduce` reads.
/// "Español", in which the program is written, until another one is put there.
QString &Idioma();

/// The translation of a Spanish interface text into the current language: its entry in Numora.txt
/// beside the program (entradaDeNumora); the text itself when there is none. Blanks at the ends of
/// a text are not part of its key and are kept.
QString Traduce(const QString &texto);

/// The value of the leading number of a numeric text (decimal point ".", exponent E or D); 0 when
/// the whole is not numeric.
double NumVal(const QString &texto);
inline double NumVal(double valor)
{
    return valor;
}

/// Whether the path names a file or a folder.
bool ExisteFichero(const QString &ruta);

/// Rounds half away from zero. Throws Desbordamiento beyond 32 bits.
std::int32_t Redondea(double valor);

/// The least integer not below the value. Throws Desbordamiento beyond 32 bits.
std::int32_t Techo(double valor);
