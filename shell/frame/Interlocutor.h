// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Tarea.h"

#include <QString>
#include <QStringList>
#include <memory>

class QPrinter;
class QWidget;

/// Everything by which the program speaks to the user or the desktop outside its own windows:
/// message boxes, questions, files to choose, the system's browser, other programs. One object
/// stands behind it; the gallery and the tests put their own there.
///
/// Questions are awaited: no event loop runs inside them. Whoever asks is gone on with when the
/// user has answered, and when its window is gone the question goes with it. A parent that dies
/// takes its box along, which counts as cancelled.
class Interlocutor
{
public:
    enum class Icono { Informacion, Exclamacion, Critico };

    virtual ~Interlocutor();

    /// Shows a message box and does not wait for it.
    virtual void avisa(QWidget *padre, Icono icono, const QString &texto, const QString &titulo);

    /// The same, and waits until the user has closed it.
    virtual Tarea<> avisaYEspera(QWidget *padre, Icono icono, QString texto, QString titulo);

    /// A line of text; empty when the user cancels.
    virtual Tarea<QString> preguntaTexto(QWidget *padre, QString pregunta, QString titulo);

    /// Whether the user says yes to a question; the answer at hand is no.
    virtual Tarea<bool> preguntaSiNo(QWidget *padre, QString pregunta, QString titulo);

    enum class Guardado { Guardar, Descartar, Cancelar };

    /// Whether unsaved work is to be saved before it goes away. Closing the box is Cancelar.
    virtual Tarea<Guardado> preguntaGuardar(QWidget *padre, QString texto, QString titulo);

    struct Archivo
    {
        QString ruta;   ///< empty when the user cancels
        int filtro = 0; ///< which of the filters was chosen
    };

    /// An existing file. `filtros` are "Hojas de MiniCal (*.minical)" and the like; `propuesta` is
    /// a folder or a file, and may be empty.
    virtual Tarea<QString> eligeArchivoParaAbrir(QWidget *padre, QString titulo, QString propuesta,
                                                 QStringList filtros);

    /// A file to write; the user has been asked about one that exists. A name without an extension
    /// gets that of the chosen filter.
    virtual Tarea<Archivo> eligeArchivoParaGuardar(QWidget *padre, QString titulo,
                                                   QString propuesta, QStringList filtros);

    /// Lets the user choose a printer and its settings; false when the user cancels.
    virtual Tarea<bool> eligeImpresora(QWidget *padre, std::shared_ptr<QPrinter> impresora,
                                       QString titulo);

    /// An existing folder, looked for from `inicial` on, under the lines of `pregunta`; empty when
    /// the user cancels.
    virtual Tarea<QString> eligeCarpeta(QWidget *padre, QString pregunta, QString inicial);

    /// Asks the desktop to open a web address or a local file (the path of a file may have
    /// back-slashes, and "#" with a place in it at its end). Failures are the desktop's to report.
    virtual void abre(const QString &direccion);

    /// Starts the first of these programs that is installed; false when none is. Each is a command
    /// with its arguments.
    virtual bool lanzaAlguno(const QList<QStringList> &ordenes);
};

Interlocutor &interlocutor();

/// Puts another one there and gives back the one that stood there; null restores the real one.
std::unique_ptr<Interlocutor> ponInterlocutor(std::unique_ptr<Interlocutor> nuevo);
