#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The forms in which the cells of a grid can be copied. The first row of `filas` may be headers.
enum class FormaDeCopia {
    Texto, ///< tabs between cells, a line a row
    CSV,   ///< ";" where the locale's decimal sign is the comma, else ","; quotes where needed
    TeX    ///< a tabular environment
};

QString textoDeRejilla(const QList<QStringList> &filas, FormaDeCopia forma,
                       bool comaDecimal = true);
