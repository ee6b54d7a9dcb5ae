// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/start/FormPrincipal.h"

#include <QPoint>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <memory>
#include <random>

/// Uses the program as nobody would: opens, closes, types, presses, drags, starts and stops runs,
/// changes topic, theme and size, in an order that a seed decides, with real events. The same seed
/// does the same, as far as the machine keeps time.
class Mono
{
public:
    Mono(const Contenido &contenido, unsigned semilla);
    ~Mono();

    /// Does one thing. Gives what is wrong afterwards; empty when nothing is.
    QString actua();

    /// Closes everything. Gives what is still at work then; empty when nothing is.
    QString recoge();

    /// What it did last, the latest at the end.
    const QStringList &diario() const { return m_diario; }

    /// How much it has done: acts, windows opened, runs begun.
    struct Cuenta
    {
        int actos = 0;
        int ventanas = 0;
        int corridas = 0;
    };
    const Cuenta &cuenta() const { return m_cuenta; }

private:
    void respondeCaja(QWidget *caja);
    void abreVentana();
    void cambiaTema();
    void pulsaBoton();
    void escribe();
    void tecla();
    void arrastra();
    void cambiaAspecto();
    void cierraVentana();
    void cambiaTamano();
    void deja(int milisegundos);
    void vigila(FormLeccion *leccion);
    QString quéFalla() const;

    template <typename Control>
    Control *alguno(QWidget *donde);
    int numero(int limite);
    void anota(const QString &acto);

    std::unique_ptr<FormPrincipal> m_principal;
    int m_filas;
    std::mt19937 m_azar;
    QTimer m_menus; ///< closes the menu of a button, in whose press Qt waits for an answer
    QStringList m_diario;
    Cuenta m_cuenta;
    QList<QPointer<FormLeccion>> m_abiertas, m_cerradas;
};
