// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/sheets/Resultados.h"

/// What a class has done, from the files of its students.
struct Clase
{
    QList<Resultados> alumnos; ///< by name
    QStringList rechazados;    ///< a sentence for each file that was not taken
};

/// Reads the files "*.csv" of a folder, at most 1000.
Clase claseDeCarpeta(const QString &carpeta);

/// The class as a grid: a row for each kind that anybody tried, a column for each student after
/// that of the kind; in a cell "3/5", unaided of those that were tried.
struct RejillaDeClase
{
    QStringList cabeceras;
    QList<QStringList> filas;
};
/// Of all that was done, or of one sheet.
RejillaDeClase rejillaDeClase(const Clase &clase, const QString &hoja = {});

/// The codes of the sheets that occur.
QStringList hojasDeClase(const Clase &clase);

/// The mistakes that most students made: kind, in words, how many students, how often.
QList<QStringList> erroresDeClase(const Clase &clase, const QString &hoja = {});
