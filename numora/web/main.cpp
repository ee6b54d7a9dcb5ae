// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/Main.h"
#include "numora/Lecciones.h"
#include "numora/web/Dedos.h"
#include "numora/web/Estrechez.h"
#include "numora/web/MenuDeDatos.h"
#include "numora/web/Puerta.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/page/DireccionDeArranque.h"
#include "shell/web/InterlocutorWeb.h"

#include <QApplication>
#include <emscripten/val.h>
#include <sys/stat.h>

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

/// The folder of the program, which the page fills anew each time: what is to be found again
/// goes to the folder of data. The mailbox is where the browser keeps one.
void preparaCarpetas()
{
    constexpr auto carpeta = "/numora";
    ::chmod(carpeta, 0555);
    ponSesión(std::make_unique<clsSesión>(QString::fromLatin1(carpeta)));
    if (Sesión().lee(u"RSA"_s, u"DirMensajes"_s).isEmpty())
        Sesión().guarda(u"RSA"_s, u"DirMensajes"_s, InterlocutorWeb::carpetaDelBuzon());
}

/// Of the size that desktops have.
void preparaLetra()
{
    constexpr qreal puntos = 10;
    QFont letra = QApplication::font();
    letra.setPointSizeF(puntos);
    QApplication::setFont(letra);
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
    preparaCarpetas();
    preparaLetra();
    new Dedos(qApp);
    const DireccionDeArranque direccion = leeDireccionDeArranque(direccionDeLaPagina());
    const QString linea = direccion.idioma.isEmpty() ? QString() : u"-i:"_s + direccion.idioma;
    auto *programa = new Programa(
        linea, contenidoDelPrograma(),
        {.presentacion = false, .oscuro = colores(direccion), .enlace = direccion.enlace});
    abrePuerta(programa);
    new Estrechez(programa->principal());
    new MenuDeDatos(programa->principal());
    return QApplication::exec();
}
