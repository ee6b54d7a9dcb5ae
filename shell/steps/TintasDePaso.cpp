// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/TintasDePaso.h"

#include "shell/look/Aspecto.h"

#include <QGuiApplication>
#include <QPalette>
#include <cmath>

TintasDePaso TintasDePaso::dePantalla()
{
    return {QGuiApplication::palette().text().color(),
            Aspecto::atenuado(),
            Aspecto::acento(),
            Aspecto::exito(),
            Aspecto::error(),
            Aspecto::esOscuro()};
}

TintasDePaso TintasDePaso::dePapel()
{
    return {Qt::black,
            QColor(0x55, 0x55, 0x55),
            QColor(0x1f, 0x6f, 0x8b),
            QColor(0x1e, 0x7a, 0x42),
            QColor(0xb3, 0x26, 0x1e),
            false};
}

QColor TintasDePaso::de(Tono tono) const
{
    switch (tono.clase) {
    case Tono::Tinta:
        return texto;
    case Tono::Suave:
        return atenuado;
    case Tono::Acento:
        return acento;
    case Tono::Acierto:
        return acierto;
    case Tono::Fallo:
        return fallo;
    case Tono::Serie:
        break;
    }
    // Steps of the golden angle around the circle of hues: no two of few are near each other.
    constexpr double GiroAureo = 0.38196601125;
    const double matiz = std::fmod(0.55 + tono.indice * GiroAureo, 1.0);
    return QColor::fromHslF(static_cast<float>(matiz), 0.55F, sobreOscuro ? 0.62F : 0.40F);
}

QColor TintasDePaso::sobre(const QColor &fondo)
{
    const double claridad = 0.299 * fondo.redF() + 0.587 * fondo.greenF() + 0.114 * fondo.blueF();
    return claridad > 0.55 ? QColor(Qt::black) : QColor(Qt::white);
}
