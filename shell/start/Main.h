#pragma once

#include "shell/frame/Leccion.h"

#include <QString>
#include <functional>
#include <memory>

class FormPrincipal;
class InstanciaUnica;
class clsSesión;

/// The language that a command line (without the program's name) asks for. Where it contains "-i:"
/// anywhere, its last token decides, from its fourth character on; tokens are what stands between
/// single blanks. "Español" without "-i:".
QString idiomaDeLinea(const QString &lineaDeOrdenes);

/// Makes sure that the session's working folder holds the program's files, asking by `pregunta` at
/// most twice and storing whatever it answers. False when the last answer is wrong too.
bool encuentraCarpetaDeTrabajo(clsSesión &sesion, const std::function<QString()> &pregunta);

/// What lives while the program runs. Empty when it was not to run.
struct ProgramaEnMarcha
{
    std::unique_ptr<InstanciaUnica> instancia;
    std::unique_ptr<FormPrincipal> principal;
};

/// The start routine: refuses a second instance, finds the working folder, takes the language,
/// loads the main window without showing it, shows the splash, and starts the big-number service.
ProgramaEnMarcha Main(const QString &lineaDeOrdenes, const Contenido &contenido);

/// Qt's own texts ("Aceptar", "Opciones:") in Spanish, unless the interface is in another language.
void instalaTextosDeQt();

/// Style, palette, type size and Qt's own texts, as the user's settings have them.
void preparaAplicacion();
