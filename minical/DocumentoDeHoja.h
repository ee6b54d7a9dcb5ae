// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/ArchivoDeHoja.h"

#include <QMap>
#include <QString>

class HojaDeCalculo;

/// The sheet as a document: the file that it belongs to, and whether what is in sight stands there.
/// Widths of columns belong to the grid, which hands them over and takes them back.
class DocumentoDeHoja
{
public:
    using Anchos = QMap<int, int>;
    using Leida = std::variant<Anchos, FalloDeHoja>;

    explicit DocumentoDeHoja(HojaDeCalculo &hoja) : m_hoja(hoja) {}

    /// The path of the file; empty while the sheet has none.
    const QString &ruta() const { return m_ruta; }
    /// The name of the file, or of one that may be made.
    QString nombre() const;
    /// Whether there is work that stands nowhere but here.
    bool modificado() const;

    /// An empty sheet that has no file.
    void nuevo();

    /// Puts the sheet of a file in place of this one, which stays unless the whole file is good.
    /// Throws what leeArchivo throws.
    Leida abre(const QString &ruta);

    /// Writes the sheet; false for one that is too large. Throws what escribeArchivo throws.
    bool guarda(const QString &ruta, const Anchos &anchos);

    /// The work that would be lost now, with its path, for a copy of it; empty when there is none.
    QByteArray copia(const Anchos &anchos) const;

    /// Takes a copy up again, as work that has not been saved. Nothing changes for a bad one.
    Leida recupera(const QByteArray &copia);

private:
    Leida carga(const QByteArray &bytes, const QString &ruta);

    HojaDeCalculo &m_hoja;
    QString m_ruta;
};

/// The path that a copy tells; empty for a sheet without a file.
QString rutaDeCopia(const QByteArray &copia);
