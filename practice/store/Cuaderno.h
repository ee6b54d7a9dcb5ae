// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/progress/Dominio.h"

#include <memory>

class AlmacenDeProgreso;

/// What a student has done so far, before and now: held in memory, and kept in their database
/// unless they have switched that off or it cannot be.
class Cuaderno
{
public:
    /// `guarda`: whether what is done is kept in a database in `carpeta`.
    Cuaderno(const QString &carpeta, bool guarda);
    ~Cuaderno();

    /// What the student is to know about the database; empty when all is well.
    QString aviso() const;
    /// Whether what is done is kept beyond the program's end.
    bool guarda() const;
    /// Whether it is to be, even where the database could not be opened.
    bool quiereGuardar() const { return m_almacen != nullptr; }
    /// Begins or ends keeping; tries again where the database could not be opened. What was kept
    /// before stays where it is.
    void ponGuarda(bool guarda);

    const QList<Hecho> &hechos() const { return m_hechos; }

    /// The place of an exercise; for a new one as it is made.
    struct Lugar
    {
        qsizetype enMemoria = -1;
        qint64 enBase = 0;
        int lectura = 0; ///< of what was read then; another one has other places
    };
    /// Puts down an exercise or what has become of it, dated today. Gives a sentence where it could
    /// not be kept.
    QString anota(Hecho hecho, Lugar &lugar);

    /// Forgets everything, what was kept before keeping ended too; a sentence where that could not
    /// be done.
    QString borraTodo();

    /// Today's Julian day.
    static qint64 hoy();

    /// What is commanded of each kind that was tried.
    QHash<QString, Dominio> dominios() const { return ::dominios(m_hechos, hoy()); }

private:
    QString m_carpeta;
    std::unique_ptr<AlmacenDeProgreso> m_almacen;
    QList<Hecho> m_hechos;
    int m_lectura = 0;
};
