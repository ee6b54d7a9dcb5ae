// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

/// A table of whole numbers of which cells are hidden for a student to fill in. An answer is an
/// expression, judged by its value as soon as it is given; cells that were given are never hidden.
class TablaConHuecos
{
public:
    enum class Estado {
        ALaVista, ///< never hidden, or shown again
        Oculta,
        Acertada,
        Fallada ///< hidden, with a wrong answer in it
    };

    /// Why a cell holds what it holds, in a sentence or two.
    using PorQue = std::function<QString(qsizetype fila, qsizetype columna)>;

    TablaConHuecos() = default;
    /// Cells are decimal digits, or empty where there is nothing to fill in; other texts must be
    /// fixed. `porQue` holds what it needs by value.
    TablaConHuecos(const QStringList &cabecera, const QList<QStringList> &filas, PorQue porQue);

    /// A cell that was given and stays in sight.
    void fija(qsizetype fila, qsizetype columna);

    const QStringList &cabecera() const { return m_cabecera; }
    qsizetype filas() const { return m_celdas.size(); }

    Estado estado(qsizetype fila, qsizetype columna) const;
    /// What can be read in a cell: its number, the answer that was given, or nothing.
    QString texto(qsizetype fila, qsizetype columna) const;

    /// Hides so many more cells, drawn at random; all where fewer are in sight.
    void ocultaAlAzar(qsizetype cuantas);
    void ocultaTodas();
    void muestraTodas();
    void oculta(qsizetype fila, qsizetype columna);

    /// Cells that are still to be filled in rightly.
    qsizetype pendientes() const;

    /// Takes an answer for a cell that is hidden or was answered, and gives its new state. A blank
    /// one takes the answer back; one that cannot be read is kept, and judged neither right nor
    /// wrong.
    Estado responde(qsizetype fila, qsizetype columna, const QString &respuesta);
    /// What the answer was found to be, for the student; empty without one.
    QString veredicto(qsizetype fila, qsizetype columna) const;
    QString porQue(qsizetype fila, qsizetype columna) const;

private:
    struct Celda
    {
        QString numero;
        bool fija = false;
        Estado estado = Estado::ALaVista;
        QString respuesta = {};
        QString veredicto = {};
    };
    QList<Celda *> ocultables();

    QStringList m_cabecera;
    QList<QList<Celda>> m_celdas;
    PorQue m_porQue;
};
