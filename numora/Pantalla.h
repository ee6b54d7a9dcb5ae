// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>
#include <vector>

/// Whether a window could be opened as far as the surroundings and the command line tell. Qt itself
/// ends the program by an abort where it finds no display.
bool hayPantalla(const QStringList &palabras);

/// Lets Qt draw without a display, before the application is made. Windows has one always, and Qt
/// no fonts there without it.
void pintaSinPantalla();

/// The command line as QApplication is to have it: with the name of the windows of X11, by which a
/// desktop finds the program's entry in its menu. Qt's own way, the program's file name, is not
/// that of the entry. To be kept as long as the application. A name that the user gives holds over
/// it.
class ArgumentosDeVentana
{
public:
    /// The name is that of QGuiApplication::desktopFileName.
    ArgumentosDeVentana(int argc, char *argv[]);

    int &cuenta() { return m_cuenta; }
    char **textos() { return m_textos.data(); }

private:
    QByteArray m_opcion{"-name"};
    QByteArray m_nombre;
    std::vector<char *> m_textos;
    int m_cuenta;
};
