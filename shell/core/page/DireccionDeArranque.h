// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>
#include <optional>

/// What the address asks for at which the program is opened in a browser:
/// "…/?i=English&oscuro#primos/factorizacion?TxtN=2^67-1". What it does not say is empty.
struct DireccionDeArranque
{
    QString idioma;             ///< as behind "-i:" of a command line
    std::optional<bool> oscuro; ///< dark or light colours
    QUrl enlace;                ///< "numora:…", as pages write it
};

DireccionDeArranque leeDireccionDeArranque(const QUrl &direccion);
