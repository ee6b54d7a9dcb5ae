// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Afinidad.h"

#include "shell/core/page/TextoBuscado.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Without blanks, and without the signs that stand between words.
QString seguido(QString texto)
{
    return texto.removeIf([](QChar letra) { return !letra.isLetterOrNumber(); });
}

} // namespace

int afinidad(const QString &buscado, const QString &titulo, const QString &detalle)
{
    const QStringList palabras = paraBuscar(buscado).split(u' ', Qt::SkipEmptyParts);
    const QString enTitulo = u' ' + paraBuscar(titulo);
    const QString enTodo = enTitulo + u' ' + paraBuscar(detalle);
    const auto cada = [&palabras](auto prueba) {
        return std::all_of(palabras.begin(), palabras.end(), prueba);
    };
    if (palabras.isEmpty())
        return 1;
    if (cada([&](const QString &palabra) { return enTitulo.contains(u' ' + palabra); }))
        return 4;
    if (cada([&](const QString &palabra) { return enTitulo.contains(palabra); }))
        return 3;
    if (seguido(enTitulo).contains(palabras.join(QString())))
        return 2;
    return cada([&](const QString &palabra) { return enTodo.contains(palabra); }) ? 1 : 0;
}
