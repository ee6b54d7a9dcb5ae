// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/Main.h"
#include "numora/HojaSinVentana.h"
#include "numora/Lecciones.h"
#include "numora/Opciones.h"
#include "numora/Pantalla.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/TextosDeQt.h"
#include "shell/start/Galeria.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the program ends with, besides 0 and 1 for a file that could not be written.
enum Salida { SinPantalla = 1, LineaEquivocada = 2 };

QStringList palabrasDe(int argc, char *argv[])
{
    QStringList palabras;
    for (int i = 0; i < argc; ++i)
        palabras << QString::fromLocal8Bit(argv[i]);
    return palabras;
}

QString idiomaPedido(const QStringList &palabras)
{
    return idiomaDeLinea(palabras.sliced(1).join(u' '));
}

/// What writes files and ends needs no display.
void ponSinPantalla(const QStringList &palabras)
{
    if (tieneOpcion(palabras, u"--hoja"_s) ||
        (tieneOpcion(palabras, u"--galeria"_s) && !hayPantalla(palabras)))
        pintaSinPantalla();
}

void dicePorError(const QString &frase)
{
    QTextStream(stderr) << frase << Qt::endl;
}

/// Answers --help and --version, and lines that cannot be followed, with neither a display nor a
/// settings store. Gives what the program is to end with, if it is.
std::optional<int> contestaSinVentanas(const QStringList &palabras, int argc, char *argv[])
{
    const bool ayuda = palabras.contains(u"--help"_s) || palabras.contains(u"-h"_s);
    const bool version = palabras.contains(u"--version"_s) || palabras.contains(u"-v"_s);
    const bool seguible = sePuedeSeguir(palabras);
    if (!ayuda && !version && seguible && hayPantalla(palabras))
        return {};
    const QCoreApplication aplicacion(argc, argv);
    Idioma() = idiomaPedido(palabras);
    instalaTextosDeQt();
    QCommandLineParser opciones;
    describe(opciones);
    if (ayuda)
        opciones.showHelp();
    if (version)
        opciones.showVersion();
    dicePorError(seguible ? Traduce(u"No hay ninguna pantalla en la que abrir ventanas."_s)
                          : falta(palabras));
    return seguible ? SinPantalla : LineaEquivocada;
}

} // namespace

int main(int argc, char *argv[])
{
    presentaPrograma(QStringLiteral(NUMORA_VERSION));
    const QStringList palabras = palabrasDe(argc, argv);
    ponSinPantalla(palabras);
    if (const auto salida = contestaSinVentanas(palabras, argc, argv))
        return *salida;
    if (tieneOpcion(palabras, u"--escala"_s)) // before Qt looks for it
        qputenv("QT_SCALE_FACTOR", QByteArray::number(escalaPedida(palabras).value() / 100.0));
    ArgumentosDeVentana argumentos(argc, argv);
    const QApplication aplicacion(argumentos.cuenta(), argumentos.textos());

    const QStringList pedido = QApplication::arguments();
    if (tieneOpcion(pedido, u"--galeria"_s))
        return Galeria(contenidoDelPrograma(), {.carpeta = valorDe(pedido, u"--galeria"_s),
                                                .tamano = tamanoPedido(palabras).value(),
                                                .oscuro = pedido.contains(u"--oscuro"_s),
                                                .idioma = idiomaPedido(pedido)});

    if (tieneOpcion(pedido, u"--hoja"_s))
        return hojaSinVentana(valorDe(pedido, u"--hoja"_s), valorDe(pedido, u"--pdf"_s),
                              pedido.contains(u"--soluciones"_s), idiomaPedido(pedido));

    const QString linea = pedido.sliced(1).join(u' ');
    const Programa programa(linea, contenidoDelPrograma());
    return QApplication::exec();
}
