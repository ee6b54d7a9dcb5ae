// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>
#include <chrono>
#include <functional>

class FormLeccion;
class QWidget;

/// One step of a scene of the gallery: what a student would do to bring a window into a state.
struct Gesto
{
    QString control; ///< objectName of a control of the window
    /// The text to write; in a grid "row,column:text", or "row,column" to make that cell the
    /// current one, both counted from 0; the index of a tab; the key of a topic; or empty
    /// for a click. A line break at its end presses Enter.
    QString valor;
};

/// A picture of the gallery: a topic of a lesson, and the steps before the picture is taken.
struct Escena
{
    QString nombre; ///< file name without extension
    QString tema;   ///< key of the topic
    QList<Gesto> gestos = {};
    /// The last step starts a run: the picture is taken while it runs, and then it is stopped.
    bool durante = false;
    /// How long after its start the picture of a run is taken; 0 for a run that is over at once.
    std::chrono::milliseconds tras{1500};
};

/// A topic as the pages know it: how links name it, and all that they may fill there.
struct TemaDePagina
{
    QString nombre;            ///< in a link, behind the lesson's
    QString clave;             ///< of the strip
    QString seccion = {};      ///< of the lesson's page, which tells about the topic
    QStringList campos = {};   ///< objectNames; of another topic too where the two belong together
    QString celdas = {};       ///< grid whose cells links name as its headers do ("C12")
    QStringList pestanas = {}; ///< sections for the tabs within the topic, where it has some
    QString rotulo = {};       ///< of the strip, Spanish
    QStringList rotulosDePestanas = {}; ///< of the tabs within it, Spanish
};

/// A window that the main window can open.
struct Leccion
{
    QString icono;  ///< resource name
    QString rotulo; ///< caption in the menu, Spanish
    /// Makes the window; empty while the lesson does not exist, and its row is then disabled.
    std::function<FormLeccion *(QWidget *padre)> crea;
    QString descripcion = {}; ///< what it teaches, a line, Spanish
    /// Gives its pictures for the gallery, which asks for them once it stands on settings of its
    /// own: some scenes name the user.
    std::function<QList<Escena>()> escenas = {};
    QString palabra = {};           ///< how links name it
    QList<TemaDePagina> temas = {}; ///< the topics that links may open
    QStringList antes = {};         ///< captions of the lessons that it builds on, Spanish
    int orden = 0;                  ///< its place in the course, from 1; 0 where it has none
};

/// The window in which the exercises of all lessons are done.
struct VentanaDePracticas
{
    Leccion ventana;
    /// Shows in that window what is to be practised: a lesson by its word ("euclides"), a kind of
    /// exercise by its key ("euclides.mcd") at a level, 0 for the one that is next, or with no key
    /// what is due. A sentence for the student where there is no such thing, else nothing.
    std::function<QString(FormLeccion &ventana, const QString &clave, int nivel)> practica = {};
    /// What a student who has practised before is invited to go on with; empty when there is
    /// nothing of the kind.
    std::function<QString()> invitacion = {};
};

/// What the program is made of. `main.cpp` writes it down; the shell knows no lesson by name.
struct Contenido
{
    QList<Leccion> lecciones; ///< the rows of the menu, top to bottom
    Leccion hojaDeCalculo;
    VentanaDePracticas practicas = {};
};
