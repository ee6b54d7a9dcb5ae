// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The interface and its pages in other languages than the one they are written in.

/// The language in which the program is written.
inline constexpr QStringView IdiomaPropio = u"Español";

/// Whether the interface has been translated into the current language. Where it has not, its texts
/// are Spanish.
bool HayTraduccion();

/// The entry of Numora.txt beside the program for a text in a language, at most 1023 characters;
/// null when there is none. Of several lines in one the breaks stand as "\n"; "=" in the text
/// stands in its key as "\e".
QString entradaDeNumora(const QString &idioma, const QString &texto);

/// The page to show in place of `pagina` in a language: the one of the same name in the folder of
/// that language beside it ("Doc\English\Primos.html" for "Doc\Primos.html") where there is such a
/// file, else `pagina` itself. The pages are written in Spanish. A language whose name is not a
/// plain name of a folder has no pages: nothing outside the folder of `pagina` is ever named.
QString PaginaTraducida(const QString &pagina, const QString &idioma);
