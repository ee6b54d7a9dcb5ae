#pragma once

#include <QString>
#include <QStringList>
#include <memory>

class QWidget;

/// Everything by which the program speaks to the user or the desktop outside its own windows:
/// message boxes, questions, the system's browser, other programs. One object stands
/// behind it; the gallery and the tests put their own there.
class Interlocutor
{
public:
    enum class Icono { Informacion, Exclamacion, Critico };

    virtual ~Interlocutor();

    virtual void mensaje(QWidget *padre, Icono icono, const QString &texto, const QString &titulo);

    /// A line of text; empty when the user cancels.
    virtual QString pideTexto(QWidget *padre, const QString &pregunta, const QString &titulo);

    /// An existing folder, looked for from `inicial` on, under the lines of `pregunta`; empty when
    /// the user cancels.
    virtual QString pideCarpeta(QWidget *padre, const QString &pregunta, const QString &inicial);

    /// Whether the user says yes to a question; the answer at hand is no.
    virtual bool confirma(QWidget *padre, const QString &pregunta, const QString &titulo);

    /// Asks the desktop to open a web address or a local file (the path of a file may have
    /// back-slashes). Failures are the desktop's to report.
    virtual void abre(const QString &direccion);

    /// Starts the first of these programs that is installed; false when none is. Each is a command
    /// with its arguments.
    virtual bool lanzaAlguno(const QList<QStringList> &ordenes);
};

Interlocutor &interlocutor();

/// Puts another one there and gives back the one that stood there; null restores the real one.
std::unique_ptr<Interlocutor> ponInterlocutor(std::unique_ptr<Interlocutor> nuevo);
