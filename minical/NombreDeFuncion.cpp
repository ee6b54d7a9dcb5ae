// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/NombreDeFuncion.h"

#include "bignum/gateway/Expresiones.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Traduccion.h"

namespace {

qsizetype inicioDePalabra(QStringView expresion, qsizetype cursor)
{
    while (cursor > 0 && expresion[cursor - 1].isLetter())
        --cursor;
    return cursor;
}

} // namespace

QList<SugerenciaDeFuncion> sugerencias(QStringView expresion, qsizetype cursor)
{
    const qsizetype inicio = inicioDePalabra(expresion, cursor);
    const QStringView palabra = expresion.sliced(inicio, cursor - inicio);
    QList<SugerenciaDeFuncion> lista;
    if (palabra.size() < 2)
        return lista;
    for (const FuncionDeExpresiones &f : funcionesDeExpresiones()) {
        const QString &nombre = Idioma() == IdiomaPropio ? f.nombre : f.internacional;
        if (nombre.startsWith(palabra, Qt::CaseInsensitive))
            lista << SugerenciaDeFuncion{nombre, Traduce(f.descripcion)};
    }
    return lista;
}

QString conFuncion(const QString &expresion, qsizetype &cursor, const QString &nombre)
{
    const qsizetype inicio = inicioDePalabra(expresion, cursor);
    QStringView resto = QStringView(expresion).sliced(cursor);
    if (resto.startsWith(u'('))
        resto = resto.sliced(1);
    cursor = inicio + nombre.size() + 1;
    return expresion.first(inicio) + nombre + u'(' + resto.toString();
}
