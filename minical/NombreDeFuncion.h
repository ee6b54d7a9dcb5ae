// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// A function that an expression may go on with.
struct SugerenciaDeFuncion
{
    QString nombre;
    QString descripcion; ///< in the language of the interface
};

/// The functions whose name begins with the word before `cursor`, by the library's table, under the
/// name that fits the language of the interface. None for words of fewer than two letters, which
/// are the beginning of a cell's name as often.
QList<SugerenciaDeFuncion> sugerencias(QStringView expresion, qsizetype cursor);

/// The expression with that function in place of the word before `cursor`, which is moved behind
/// its opening bracket.
QString conFuncion(const QString &expresion, qsizetype &cursor, const QString &nombre);
