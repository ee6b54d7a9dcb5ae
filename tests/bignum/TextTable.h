// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTest>

/// Test data from a text: rows end with two blanks or the line, " = " parts their columns, a column
/// that is missing is as the one before, '' is empty, and "topic:" names the rows of its line.
inline void addTable(std::initializer_list<const char *> columns, const char *table)
{
    using namespace Qt::Literals::StringLiterals;
    for (const char *column : columns)
        QTest::addColumn<QByteArray>(column);
    for (const QString &line : QString::fromUtf8(table).split(u'\n')) {
        QString topic;
        for (const QString &cell : line.split(u"  "_s, Qt::SkipEmptyParts)) {
            if (cell.endsWith(u':')) {
                topic = cell + u' ';
                continue;
            }
            const QStringList texts = cell.trimmed().split(u" = "_s);
            QTestData &row = QTest::newRow((topic + cell).toUtf8().constData());
            for (qsizetype i = 0; i < static_cast<qsizetype>(columns.size()); ++i)
                row << texts.value(i, texts.last()).replace(u"''"_s, QString()).toUtf8();
        }
    }
}
