// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/store/Cuaderno.h"
#include "shell/frame/FormLeccion.h"

class FormPracticasPracticar;

/// The exercises of all lessons: practice, the map of the course, what was done, sheets for a class
/// and what a class has done with them.
class FormPracticas : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormPracticas(QWidget *padre = nullptr);

    /// Shows an exercise of a lesson ("euclides"), of a kind ("euclides.mcd"), or with an empty key
    /// the one that is due, at a level or at the one that is next (0). Gives a sentence where there
    /// is no such thing, else nothing.
    QString practica(const QString &clave, int nivel);

    /// What a student who has practised is invited to go on with, from what the window noted down
    /// when it was last open; empty for one who has not.
    static QString invitacion();

private:
    void abreTemaDeClave(const QString &clave);
    void apuntaInvitacion() const;

    Cuaderno m_cuaderno;
    FormPracticasPracticar *m_practicar;
};
