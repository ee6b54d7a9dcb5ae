#pragma once

#include "bignum/gateway/Moneda.h"
#include "shell/core/clsSesion.h"

#include <QString>
#include <cstdint>

/// The language in which the program is written.
inline constexpr QStringView IdiomaPropio = u"Español";

/// The language of the interface: the name of the section of Numora.txt that `Traduce` reads.
/// IdiomaPropio until another one is put there.
QString &Idioma();

/// Whether the interface has been translated into the current language. Where it has not, its texts
/// are Spanish.
bool HayTraduccion();

/// The translation of a Spanish interface text into the current language: the entry of Numora.txt
/// beside the program, at most 1023 characters; the text itself when there is none. Blanks at the
/// ends of a text are not part of its key and are kept; a line break stands in the file as "\n",
/// and
/// "=" in a key as "\e".
QString Traduce(const QString &texto);

/// Whether a whole text is a number: blanks around, sign, digits with a decimal part after "." or
/// ",", exponent; within the range of a double.
bool EsNumerico(const QString &texto);

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
