// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Pantalla.h"

#include <QGuiApplication>
#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

bool hayPantalla([[maybe_unused]] const QStringList &palabras)
{
#if defined(Q_OS_LINUX)
    // Qt looks for these, and for a platform that is named.
    constexpr std::array variables{"DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET",
                                   "QT_QPA_PLATFORM"};
    return palabras.contains(u"-platform"_s) || palabras.contains(u"--platform"_s) ||
           std::ranges::any_of(variables, [](const char *variable) {
               return !qEnvironmentVariableIsEmpty(variable);
           });
#else
    return true;
#endif
}

void pintaSinPantalla()
{
#if !defined(Q_OS_WIN)
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
}

ArgumentosDeVentana::ArgumentosDeVentana(int argc, char *argv[])
    : m_nombre(QGuiApplication::desktopFileName().toUtf8()),
      m_textos(argv, argv + argc),
      m_cuenta(argc)
{
#if !defined(Q_OS_WIN) // which knows no such name and would leave it in the line
    m_textos.insert(m_textos.begin() + 1, {m_opcion.data(), m_nombre.data()});
    m_cuenta += 2;
#endif
    m_textos.push_back(nullptr);
}
