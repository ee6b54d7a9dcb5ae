// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Evento.h"
#include "shell/frame/Leccion.h"

#include <QString>
#include <QUrl>
#include <memory>
#include <optional>

class FinDeSesion;
class FormPrincipal;
class InstanciaUnica;

/// Tells Qt and the desktop the name and the version of the program. No display name: it would be
/// added to the titles of all windows, which are to be read as they are given.
void presentaPrograma(const QString &version);

/// The language that a command line (without the program's name) asks for. Where it contains "-i:"
/// anywhere, its last token decides, from its fourth character on; tokens are what stands between
/// single blanks. "Español" without "-i:".
QString idiomaDeLinea(const QString &lineaDeOrdenes);

/// Makes sure that the session's working folder holds the program's files, asking the user at most
/// twice and storing whatever is answered. False when the last answer is wrong too.
Tarea<bool> encuentraCarpetaDeTrabajo();

/// How the program shows itself when it starts.
struct Entrada
{
    bool presentacion = true;   ///< the splash comes before the main window
    std::optional<bool> oscuro; ///< dark or light colours for this time, whatever the settings say
    QUrl enlace;                ///< "numora:…", followed when the main window is there
};

/// What lives while the program runs.
class Programa
{
public:
    /// Begins the start routine, which goes on from the event loop where the user is asked. The
    /// program quits by itself when it ends without a main window.
    Programa(const QString &lineaDeOrdenes, const Contenido &contenido,
             const Entrada &entrada = {});
    ~Programa();

    /// Null before the start routine has come so far, and when it ends before.
    FormPrincipal *principal() const { return m_principal.get(); }

private:
    Tarea<> Main(QString lineaDeOrdenes, Contenido contenido, Entrada entrada);

    std::unique_ptr<InstanciaUnica> m_instancia;
    std::unique_ptr<FormPrincipal> m_principal;
    std::unique_ptr<FinDeSesion> m_fin;
    TareasDeVentana m_tareas{nullptr};
};

/// Style, palette, type size and Qt's own texts, as the user's settings have them.
void preparaAplicacion();
