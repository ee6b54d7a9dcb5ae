// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRegularExpression>
#include <QStringList>
#include <QTest>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace tabla_de_texto {

/// What a cell says: blank is the empty text, quotes keep blanks, \n breaks the line.
template <typename Tipo>
Tipo valor(const QString &celda)
{
    if constexpr (std::is_same_v<Tipo, QByteArray>) {
        return valor<QString>(celda).toUtf8();
    } else if constexpr (std::is_same_v<Tipo, QString>) {
        const bool entreComillas = celda.size() > 1 && celda.startsWith(u'"');
        QString texto = entreComillas ? celda.sliced(1).chopped(1) : celda;
        // Null where it is empty, as QString() is: a null text does not start with an empty one.
        return texto.isEmpty() ? QString() : texto.replace(u"\\n"_s, u"\n"_s);
    } else {
        bool vale = true;
        const qint64 numero = celda == u"yes" ? 1 : celda == u"no" ? 0 : celda.toLongLong(&vale);
        if (!vale || static_cast<qint64>(static_cast<Tipo>(numero)) != numero)
            qFatal("not a cell of its column: %s", qPrintable(celda));
        return static_cast<Tipo>(numero);
    }
}

} // namespace tabla_de_texto

/// A row beside those of a text, for cells that cannot be written there.
template <typename... Tipos>
void otraFila(const QString &nombre, const Tipos &...celdas)
{
    QTest::newRow(qPrintable(nombre)) << std::tuple<Tipos...>{celdas...};
}

/// The rows of a data function, one a line or between double bars: the name, which is left out
/// where the cells tell enough, and the cells, between bars. A single cell with a colon at its end
/// names the rows behind it on its line. A backslash at its end continues a line.
template <typename... Tipos>
void filasDeTexto(QString texto)
{
    QTest::addColumn<std::tuple<Tipos...>>("fila");
    static const QRegularExpression continuacion(u"\\\\\n *"_s);
    static const QRegularExpression barra(u" \\|(?= )"_s);
    for (const QString &linea : texto.remove(continuacion).split(u'\n', Qt::SkipEmptyParts)) {
        QString asunto;
        for (const QString &fila : linea.split(u" || "_s)) {
            QStringList celdas = (u' ' + fila + u' ').split(barra);
            for (QString &celda : celdas)
                celda = celda.trimmed();
            if (celdas.size() == 1 && celdas.first().endsWith(u':')) {
                asunto = celdas.first() + u' ';
                continue;
            }
            const bool conNombre = celdas.size() > qsizetype(sizeof...(Tipos));
            const QString nombre = asunto + (conNombre ? celdas.takeFirst() : fila.trimmed());
            if (celdas.size() != qsizetype(sizeof...(Tipos)))
                qFatal("not a row of its table: %s", qPrintable(fila));
            QTest::newRow(qPrintable(nombre))
                << std::tuple<Tipos...>{tabla_de_texto::valor<Tipos>(celdas.takeFirst())...};
        }
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
