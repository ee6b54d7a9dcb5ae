// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The forms in which the cells of a grid can be copied.
enum class FormaDeCopia {
    Texto, ///< tabs between cells, a line a row
    CSV,   ///< ";" where the locale's decimal sign is the comma, else ","; quotes where needed
    TeX    ///< a tabular environment
};

/// Writes the rows of a grid one after the other, so that millions of them need no more room than
/// their text. The first row may be headers.
class EscritorDeRejilla
{
public:
    /// `columnas`: the cells that a row has. `comaDecimal`: whether the locale's decimal sign is
    /// the comma.
    EscritorDeRejilla(FormaDeCopia forma, qsizetype columnas, bool comaDecimal = true);

    void agrega(const QStringList &fila);

    /// Closes the text and gives it; nothing can be written after it.
    QString termina();

private:
    FormaDeCopia m_forma;
    QChar m_coma; ///< what stands between the cells of CSV
    QString m_texto;
};

/// The same for rows that are all at hand.
QString textoDeRejilla(const QList<QStringList> &filas, FormaDeCopia forma,
                       bool comaDecimal = true);

/// The rows of a text in which lines stand for rows and tabs between cells, as spreadsheets copy
/// them; line ends may be CR LF, and the last one may be missing.
QList<QStringList> filasDeTexto(QString texto);
