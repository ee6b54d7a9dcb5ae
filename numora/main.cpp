// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/Main.h"
#include "numora/HojaSinVentana.h"
#include "numora/Lecciones.h"
#include "shell/look/TextosDeQt.h"
#include "shell/start/Galeria.h"

#include <QApplication>
#include <QCommandLineParser>

using namespace Qt::Literals::StringLiterals;

namespace {

void describe(QCommandLineParser &opciones)
{
    opciones.setApplicationDescription(u"Numora: matemática discreta, paso a paso"_s);
    opciones.addOption({{u"h"_s, u"help"_s}, u"Muestra esta ayuda."_s});
    opciones.addOption({{u"v"_s, u"version"_s}, u"Muestra la versión."_s});
    opciones.addOption({u"i"_s, u"Idioma de los textos, como en -i:English."_s, u"idioma"_s});
    opciones.addOption(
        {u"galeria"_s, u"Guarda imágenes de todas las ventanas en la carpeta DIR."_s, u"DIR"_s});
    opciones.addOption({u"tamano"_s, u"Tamaño de la ventana en la galería, como 1366x768."_s,
                        u"ANCHOxALTO"_s, u"1366x768"_s});
    opciones.addOption({u"escala"_s, u"Escala de la galería en tanto por ciento, como 150."_s,
                        u"PORCIENTO"_s, u"100"_s});
    opciones.addOption({u"oscuro"_s, u"Colores oscuros en la galería."_s});
    opciones.addOption(
        {u"hoja"_s, u"Escribe la hoja de ejercicios de ese código, sin ventanas."_s, u"CÓDIGO"_s});
    opciones.addOption({u"pdf"_s, u"El archivo en el que se escribe la hoja."_s, u"ARCHIVO"_s});
    opciones.addOption({u"soluciones"_s, u"Con las respuestas y soluciones detrás."_s});
}

QSize tamano(const QString &texto)
{
    const QStringList lados = texto.split(u'x');
    const QSize leido(lados.value(0).toInt(), lados.value(1).toInt());
    return leido.expandedTo({640, 480}).boundedTo({8192, 8192});
}

/// Answers --help and --version, which need neither a display nor a settings store.
void contestaSinVentanas(int argc, char *argv[])
{
    QStringList palabras;
    for (int i = 0; i < argc; ++i)
        palabras << QString::fromLocal8Bit(argv[i]);
    if (!palabras.contains(u"--help"_s) && !palabras.contains(u"-h"_s) &&
        !palabras.contains(u"--version"_s) && !palabras.contains(u"-v"_s))
        return;
    const QCoreApplication aplicacion(argc, argv);
    instalaTextosDeQt();
    QCommandLineParser opciones;
    describe(opciones);
    opciones.parse(palabras);
    if (opciones.isSet(u"help"_s))
        opciones.showHelp();
    opciones.showVersion();
}

/// What writes a file and ends needs no display.
void ponSinPantalla(int argc, char *argv[])
{
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--hoja") == 0 || qstrncmp(argv[i], "--hoja=", 7) == 0)
            qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

/// The scale of the gallery has to stand before Qt looks for it.
void ponEscala(int argc, char *argv[])
{
    QStringList palabras;
    for (int i = 0; i < argc; ++i)
        palabras << QString::fromLocal8Bit(argv[i]);
    const qsizetype lugar = palabras.indexOf(u"--escala"_s);
    const double porCiento = lugar < 0 ? 0 : palabras.value(lugar + 1).toDouble();
    if (porCiento >= 100 && porCiento <= 400)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(porCiento / 100));
}

} // namespace

int main(int argc, char *argv[])
{
    presentaPrograma(QStringLiteral(NUMORA_VERSION));
    contestaSinVentanas(argc, argv);
    ponEscala(argc, argv);
    ponSinPantalla(argc, argv);
    const QApplication aplicacion(argc, argv);

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
