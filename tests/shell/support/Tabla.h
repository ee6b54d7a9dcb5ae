// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTest>
#include <set>

/// Test data from a text: the names of the columns, then rows that begin with a name of their own.
/// A bar parts the cells, all of them text, and two bars or the end of a line the rows; "␣" stands
/// for a blank at the border of a cell.
inline void tabla(const QString &texto)
{
    static std::set<QByteArray> nombres; // Qt Test keeps no copy of a column's name
    qsizetype columnas = 0;
    const QStringList lineas = QString(texto)
                                   .replace(QLatin1String("||"), QLatin1String("\n"))
                                   .split(u'\n', Qt::SkipEmptyParts);
    for (const QString &linea : lineas) {
        QStringList celdas = linea.split(u'|');
        for (QString &celda : celdas)
            celda = celda.trimmed().replace(QChar(u'␣'), QChar(u' '));
        if (columnas == 0) {
            columnas = celdas.size();
            for (const QString &nombre : celdas)
                QTest::addColumn<QString>(nombres.insert(nombre.toUtf8()).first->constData());
            continue;
        }
        if (celdas.size() != columnas + 1)
            qFatal("a row of another length: %s", qPrintable(linea));
        QTestData &fila = QTest::newRow(qPrintable(celdas.takeFirst()));
        for (const QString &celda : celdas)
            fila << celda;
    }
}
