#pragma once

#include <QString>

/// The page to show in place of `pagina` in a language: the one of the same name in the folder of
/// that language beside it ("Doc\English\Primos.html" for "Doc\Primos.html") where there is such a
/// file, else `pagina` itself. The pages are written in Spanish. A language whose name is not a
/// plain name of a folder has no pages: nothing outside the folder of `pagina` is ever named.
QString PaginaTraducida(const QString &pagina, const QString &idioma);
