// SPDX-License-Identifier: GPL-3.0-or-later

// A program of Qt that shows an empty window: what starting the real one is compared with.

#include <QApplication>
#include <QWidget>

int main(int argc, char *argv[])
{
    const QApplication aplicacion(argc, argv);
    QWidget ventana;
    ventana.setWindowTitle(QStringLiteral("Ventana vacía"));
    ventana.resize(600, 400);
    ventana.show();
    return QApplication::exec();
}
