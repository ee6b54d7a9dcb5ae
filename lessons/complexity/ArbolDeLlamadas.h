// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointF>

/// A call in the tree of calls of F(n).
struct Llamada
{
    int n = 0;
    int padre = -1; ///< index of the call that made this one; -1 for the first
    QPointF sitio;  ///< in columns from the left and rows from the top; callers over their calls
    bool repetida = false; ///< the same value has been asked for before
};

/// The calls that the recursive F(n) makes, in the order in which it makes them, with a place for
/// each in a drawing: every last call stands in a column of its own, and every other in the middle
/// above its two.
class ArbolDeLlamadas
{
public:
    /// The largest n whose tree can be read on a screen.
    static constexpr int MaximoN = 10;

    /// The tree of F(n), n from 0 to MaximoN. With a memory a value that is asked for again is not
    /// computed again.
    ArbolDeLlamadas(int n, bool conMemoria);

    const QList<Llamada> &llamadas() const { return m_llamadas; }
    int repetidas() const;

    int columnas() const { return m_columnas; }
    int filas() const { return m_filas; }

private:
    int agrega(int n, int padre, int fila);

    bool m_conMemoria;
    QList<Llamada> m_llamadas;
    QList<bool> m_vistas;
    int m_columnas = 0;
    int m_filas = 0;
};
