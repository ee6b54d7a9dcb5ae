// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRegularExpression>
#include <QStringList>
#include <QTest>
#include <tuple>

namespace tabla_de_texto {

/// What a cell says: blank is the empty text, quotes keep blanks, \n breaks the line.
template <typename Tipo>
Tipo valor(const QString &celda)
{
    if constexpr (std::is_same_v<Tipo, QString>) {
        const bool entreComillas = celda.size() > 1 && celda.startsWith(u'"');
        QString texto = entreComillas ? celda.sliced(1).chopped(1) : celda;
        // Null where it is empty, as QString() is: a null text does not start with an empty one.
        return texto.isEmpty() ? QString()
                               : texto.replace(QStringLiteral("\\n"), QStringLiteral("\n"));
    } else {
        bool vale = true;
        const qint64 numero = celda == u"yes" ? 1 : celda == u"no" ? 0 : celda.toLongLong(&vale);
        if (!vale || static_cast<qint64>(static_cast<Tipo>(numero)) != numero)
            qFatal("not a cell of its column: %s", qPrintable(celda));
        return static_cast<Tipo>(numero);
    }
}

} // namespace tabla_de_texto

/// The rows of a data function, one a line or between double bars: the name, which is left out
/// where the cells tell enough, and the cells, between bars. A backslash at its end continues a
/// line.
template <typename... Tipos>
void filasDeTexto(QString texto)
{
    QTest::addColumn<std::tuple<Tipos...>>("fila");
    static const QRegularExpression continuacion(QStringLiteral("\\\\\n *"));
    static const QRegularExpression fin(QStringLiteral(" \\|\\| |\n"));
    for (const QString &linea : texto.remove(continuacion).split(fin, Qt::SkipEmptyParts)) {
        QStringList celdas = (linea + u' ').split(QStringLiteral(" | "));
        for (QString &celda : celdas)
            celda = celda.trimmed();
        const bool conNombre = celdas.size() > qsizetype(sizeof...(Tipos));
        const QString nombre = conNombre ? celdas.takeFirst() : linea.trimmed();
        if (celdas.size() != qsizetype(sizeof...(Tipos)))
            qFatal("not a row of its table: %s", qPrintable(linea));
        QTest::newRow(qPrintable(nombre))
            << std::tuple<Tipos...>{tabla_de_texto::valor<Tipos>(celdas.takeFirst())...};
    }
}

/// The cells of the row that runs; a single one as it is.
template <typename... Tipos>
auto estaFila()
{
    QFETCH(std::tuple<Tipos...>, fila);
    if constexpr (sizeof...(Tipos) == 1)
        return std::get<0>(fila);
    else
        return fila;
}
