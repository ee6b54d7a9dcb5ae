// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/Main.h"
#include "numora/Lecciones.h"
#include "numora/web/Puerta.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/page/DireccionDeArranque.h"
#include "shell/web/InterlocutorWeb.h"

#include <QApplication>
#include <emscripten/val.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QUrl direccionDeLaPagina()
{
    const auto direccion = emscripten::val::global("location")["href"].as<std::string>();
    return QUrl(QString::fromStdString(direccion), QUrl::TolerantMode);
}

/// What the address says, or else the browser where the settings leave it to the system.
std::optional<bool> colores(const DireccionDeArranque &direccion)
{
    if (direccion.oscuro || Sesión().recuerda(u"Ventana/Tema"_s, 0).toInt() != 0)
        return direccion.oscuro;
    const auto oscuros = emscripten::val::global("window").call<emscripten::val>(
        "matchMedia", std::string("(prefers-color-scheme: dark)"));
    return oscuros["matches"].as<bool>();
}

} // namespace

/// The program in a browser. The event loop never returns, and what leaves this function would be
/// destroyed while it runs: the objects are the page's, which ends with them.
int main(int argc, char *argv[])
{
    presentaPrograma(QStringLiteral(NUMORA_VERSION));
    static int cuenta = argc;
    new QApplication(cuenta, argv);
    ponInterlocutor(std::make_unique<InterlocutorWeb>());
    Sesión().ponCarpeta(u"/numora"_s);
    const DireccionDeArranque direccion = leeDireccionDeArranque(direccionDeLaPagina());
    const QString linea = direccion.idioma.isEmpty() ? QString() : u"-i:"_s + direccion.idioma;
    abrePuerta(new Programa(
        linea, contenidoDelPrograma(),
        {.presentacion = false, .oscuro = colores(direccion), .enlace = direccion.enlace}));
    return QApplication::exec();
}
