// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "practice/store/AlmacenDeProgreso.h"
#include "practice/windows/FormPracticas.h"
#include "shell/core/CarpetaDeDatos.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <cstdio>

// Answers exercises in the practice window without end, for scripts/practice_kill.sh: tells how
// many answers were kept when it begins, and each one once it is kept.

using namespace Qt::Literals::StringLiterals;

namespace {

int guardadas(const AlmacenDeProgreso &almacen)
{
    int suma = 0;
    for (const Hecho &hecho : almacen.hechos())
        suma += hecho.intentos;
    return suma;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion(argc, argv);
    ponCarpetaDeDatos(QString::fromLocal8Bit(argv[argc - 1]));
    IniciaBignum(50);
    int cuenta = 0;
    {
        const AlmacenDeProgreso almacen(carpetaDeDatos());
        if (!almacen.abierto() || !almacen.aviso().isEmpty()) {
            std::printf("told %s\n", qPrintable(almacen.aviso()));
            return 1;
        }
        cuenta = guardadas(almacen);
    }
    std::printf("found %d\n", cuenta);
    FormPracticas ventana;
    ventana.show();
    auto *campo = ventana.findChild<QLineEdit *>(u"txtRespuesta"_s);
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, &ventana, [&] {
        ventana.findChild<QPushButton *>(u"cmdSiguiente"_s)->click();
        campo->setText(u"1"_s);
        ventana.findChild<QPushButton *>(u"cmdComprobar"_s)->click();
        const QString aviso = ventana.findChild<QLabel *>(u"lblAviso"_s)->text();
        if (aviso.isEmpty())
            std::printf("kept %d\n", ++cuenta);
        else
            std::printf("told %s\n", qPrintable(aviso));
        std::fflush(stdout);
    });
    reloj.start(0);
    return QApplication::exec();
}
