// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/progress/EjercicioEnCurso.h"

#include <variant>

/// What one student did, as it goes to a teacher.
struct Resultados
{
    QString alumno;
    QList<Hecho> hechos;
};

/// As a table that this program and spreadsheets read: a line an exercise, with the code of its
/// sheet, kind, level, result, tries, hints, seconds, day, and the mistakes.
QByteArray resultadosEnCsv(const Resultados &resultados);

/// The same for a reader, in the interface's language.
QString resultadosEnTexto(const Resultados &resultados);

/// Reads what resultadosEnCsv wrote, from whoever it comes: a file that is no such table, is too
/// large or holds impossible values is refused with a sentence.
std::variant<Resultados, QString> leeResultados(const QByteArray &bytes);

/// The largest file that is read, in bytes.
inline constexpr qint64 MaximoDeResultados = 4 * 1024 * 1024;
