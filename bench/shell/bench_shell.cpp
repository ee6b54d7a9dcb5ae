// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/shell/Hijo.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <cstring>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Medida
{
    double milisegundos = 0; ///< from the start of the process to its end
    double numero = 0;       ///< what it printed
};

Medida unaVez(const QString &modo)
{
    QElapsedTimer reloj;
    reloj.start();
    QProcess proceso;
    proceso.start(QCoreApplication::applicationFilePath(), {modo});
    proceso.waitForFinished(-1);
    Medida medida;
    medida.milisegundos = static_cast<double>(reloj.nsecsElapsed()) / 1e6;
    medida.numero = proceso.readAllStandardOutput().trimmed().toDouble();
    return medida;
}

/// The median of several runs; a shared machine is now and then busy with something else.
Medida mediana(const QString &modo, int veces)
{
    std::vector<Medida> medidas;
    for (int i = 0; i < veces; ++i)
        medidas.push_back(unaVez(modo));
    std::ranges::sort(medidas, {}, &Medida::milisegundos);
    return medidas[medidas.size() / 2];
}

void fila(const QString &que, double nuestro, double par, const QString &unidad, double limite)
{
    QTextStream(stdout) << u"%1 %2 %6  %3 %6  %4  (at most %5)"_s.arg(que, -34)
                               .arg(nuestro, 9, 'f', 1)
                               .arg(par, 9, 'f', 1)
                               .arg(nuestro / par, 6, 'f', 2)
                               .arg(limite)
                               .arg(unidad)
                        << Qt::endl;
}

int padre(int argc, char *argv[])
{
    QCoreApplication aplicacion(argc, argv);
    const QTemporaryDir ajustes;
    qputenv("XDG_CONFIG_HOME", ajustes.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", ajustes.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", ajustes.path().toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QSettings almacen(ajustes.filePath(u"Numora/Numora.ini"_s), QSettings::IniFormat);
    almacen.setValue(u"Programa/Carpeta"_s, QStringLiteral(CARPETA_DE_TRABAJO));
    almacen.sync();

    unaVez(u"presentacion"_s);
    const Medida desnudo = mediana(u"desnudo"_s, 15);
    const Medida presentacion = mediana(u"presentacion"_s, 15);
    const Medida lecciones = mediana(u"lecciones"_s, 1);
    const Medida memoria = mediana(u"memoria"_s, 1);
    const Medida atencion = unaVez(u"atencion"_s);

    QTextStream(stdout)
        << "                                          Numora      bare Qt    ratio\n";
    fila(u"start to splash painted"_s, presentacion.milisegundos, desnudo.milisegundos, u"ms"_s, 3);
    fila(u"opening a lesson again, the slowest"_s, lecciones.numero, desnudo.milisegundos, u"ms"_s,
         1);
    fila(u"memory with every lesson open"_s, memoria.numero / 1024, desnudo.numero / 1024, u"MB"_s,
         6);
    fila(u"wait of a click during a run, of 50"_s, atencion.numero, 50, u"ms"_s, 1);
    QTextStream(stdout)
        << "wait of clicks during runs, ms                       middle    99%  longest"
        << Qt::endl;
    return QProcess::execute(QCoreApplication::applicationFilePath(), {u"clics"_s});
}

} // namespace

int main(int argc, char *argv[])
{
    const char *modo = argc > 1 ? argv[1] : "";
    if (std::strcmp(modo, "desnudo") == 0)
        return hijo::desnudo(argc, argv);
    if (std::strcmp(modo, "presentacion") == 0)
        return hijo::presentacion(argc, argv);
    if (std::strcmp(modo, "lecciones") == 0)
        return hijo::lecciones(argc, argv);
    if (std::strcmp(modo, "memoria") == 0)
        return hijo::memoria(argc, argv);
    if (std::strcmp(modo, "atencion") == 0)
        return hijo::atencion(argc, argv);
    if (std::strcmp(modo, "clics") == 0)
        return hijo::clics(argc, argv);
    return padre(argc, argv);
}
