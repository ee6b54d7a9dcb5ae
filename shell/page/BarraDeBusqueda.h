// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class NavegadorPagina;
class QLabel;
class QLineEdit;
class QToolButton;

/// Below a page: a text to find in it, how often it stands there, and the way to the next one and
/// to the one before. Hidden until it is asked for.
class BarraDeBusqueda : public QWidget
{
    Q_OBJECT

public:
    BarraDeBusqueda(NavegadorPagina *pagina, QWidget *padre);

    /// Comes in sight with what the reader has selected, or looked for before.
    void abre();

    /// Goes to another place, counted from the one in sight; after the last comes the first.
    void avanza(int pasos);

private:
    void txtBuscar_Change();
    void muestraCuenta();

    NavegadorPagina *m_pagina;
    QLineEdit *m_texto;
    QLabel *m_cuenta;
    QString m_buscada; ///< the page that was searched
    int m_hallazgos = 0;
    int m_actual = 0;
};
