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

QSize tamano(const QString &texto)
{
    const QStringList lados = texto.split(u'x');
    const QSize leido(lados.value(0).toInt(), lados.value(1).toInt());
    return leido.expandedTo({640, 480}).boundedTo({8192, 8192});
}

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
        qputenv("QT_QPA_PLATFORM", "offscreen");
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
    const QString sinValor = opcionSinValor(palabras);
    if (!ayuda && !version && sinValor.isEmpty() && hayPantalla(palabras))
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
    if (sinValor.isEmpty())
        dicePorError(Traduce(u"No hay ninguna pantalla en la que abrir ventanas."_s));
    else
        dicePorError(Traduce(u"Falta el valor de %1."_s).arg(sinValor));
    return sinValor.isEmpty() ? SinPantalla : LineaEquivocada;
}

/// The scale of the gallery has to stand before Qt looks for it.
void ponEscala(const QStringList &palabras)
{
    const qsizetype lugar = palabras.indexOf(u"--escala"_s);
    const double porCiento = lugar < 0 ? 0 : palabras.value(lugar + 1).toDouble();
    if (porCiento >= 100 && porCiento <= 400)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(porCiento / 100));
}

} // namespace

int main(int argc, char *argv[])
{
    presentaPrograma(QStringLiteral(NUMORA_VERSION));
    const QStringList palabras = palabrasDe(argc, argv);
    ponSinPantalla(palabras);
    if (const auto salida = contestaSinVentanas(palabras, argc, argv))
        return *salida;
    ponEscala(palabras);
    ArgumentosDeVentana argumentos(argc, argv);
    const QApplication aplicacion(argumentos.cuenta(), argumentos.textos());

    QCommandLineParser opciones;
    describe(opciones);
    opciones.parse(QApplication::arguments());
    const QString linea = QApplication::arguments().sliced(1).join(u' ');
    if (opciones.isSet(u"galeria"_s))
        return Galeria(contenidoDelPrograma(), {.carpeta = opciones.value(u"galeria"_s),
                                                .tamano = tamano(opciones.value(u"tamano"_s)),
                                                .oscuro = opciones.isSet(u"oscuro"_s),
                                                .idioma = idiomaDeLinea(linea)});

    if (opciones.isSet(u"hoja"_s))
        return hojaSinVentana(opciones.value(u"hoja"_s), opciones.value(u"pdf"_s),
                              opciones.isSet(u"soluciones"_s), idiomaDeLinea(linea));

    const Programa programa(linea, contenidoDelPrograma());
    return QApplication::exec();
}
