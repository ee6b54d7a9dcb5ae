// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Aspecto.h"

#include "shell/core/system/Escritorio.h"
#include "shell/look/Estilo.h"

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Where a heading keeps by how much it is larger than ordinary text.
constexpr auto PropiedadFactor = "factorDeLetra";

struct Estado
{
    Aspecto::Tema tema = Aspecto::Tema::Sistema;
    bool sistemaOscuro = escritorioOscuro() || qApp->palette().window().color().lightness() < 128;
    qreal puntos = qApp->font().pointSizeF();
    int pasos = 0;
    bool movimientoReducido = false;
};

Estado &estado()
{
    static Estado unico;
    return unico;
}

struct Colores
{
    QColor ventana, base, alterna, texto, boton, acento, sobreAcento, enlace, atenuado, borde;
};

QPalette paleta(const Colores &c)
{
    QPalette p(c.boton, c.ventana);
    p.setColor(QPalette::Window, c.ventana);
    p.setColor(QPalette::WindowText, c.texto);
    p.setColor(QPalette::Base, c.base);
    p.setColor(QPalette::AlternateBase, c.alterna);
    p.setColor(QPalette::Text, c.texto);
    p.setColor(QPalette::Button, c.boton);
    p.setColor(QPalette::ButtonText, c.texto);
    p.setColor(QPalette::ToolTipBase, c.base);
    p.setColor(QPalette::ToolTipText, c.texto);
    p.setColor(QPalette::PlaceholderText, c.atenuado);
    p.setColor(QPalette::Highlight, c.acento);
    p.setColor(QPalette::HighlightedText, c.sobreAcento);
    p.setColor(QPalette::Link, c.enlace);
    p.setColor(QPalette::LinkVisited, c.enlace);
    p.setColor(QPalette::Mid, c.borde);
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, papel, c.atenuado);
    p.setColor(QPalette::Disabled, QPalette::Highlight, c.borde);
    // What is chosen where the keyboard is not.
    p.setColor(QPalette::Inactive, QPalette::Highlight, c.borde);
    p.setColor(QPalette::Inactive, QPalette::HighlightedText, c.texto);
    return p;
}

QPalette clara()
{
    return paleta({.ventana = 0xf4f6fb,
                   .base = 0xffffff,
                   .alterna = 0xeef3f6,
                   .texto = 0x22333b,
                   .boton = 0xfbfcfd,
                   .acento = 0x1f6f8b,
                   .sobreAcento = 0xffffff,
                   .enlace = 0x1a5f9e,
                   .atenuado = 0x61707a,
                   .borde = 0xc3ced5});
}

QPalette oscura()
{
    return paleta({.ventana = 0x20262b,
                   .base = 0x171c20,
                   .alterna = 0x1f262b,
                   .texto = 0xe4eaed,
                   .boton = 0x2c353b,
                   .acento = 0x277c9a,
                   .sobreAcento = 0xffffff,
                   .enlace = 0x7cc4de,
                   .atenuado = 0x8d9ba3,
                   .borde = 0x46525a});
}

} // namespace

void Aspecto::aplica(Tema tema)
{
    estado().tema = tema;
    QApplication::setStyle(new Estilo);
    QApplication::setPalette(esOscuro() ? oscura() : clara());
}

Aspecto::Tema Aspecto::tema()
{
    return estado().tema;
}

bool Aspecto::esOscuro()
{
    return estado().tema == Tema::Oscuro ||
           (estado().tema == Tema::Sistema && estado().sistemaOscuro);
}

void Aspecto::ponPasosDeLetra(int pasos)
{
    const qreal base = estado().puntos;
    const qreal puntos = std::clamp(base + pasos, 6.0, 32.0);
    estado().pasos = static_cast<int>(puntos - base);
    QFont letra = QApplication::font();
    letra.setPointSizeF(puntos);
    QApplication::setFont(letra);
    // A font of its own does not follow the application's.
    const auto controles = QApplication::allWidgets();
    for (QWidget *control : controles) {
        auto *rotulo = qobject_cast<QLabel *>(control);
        if (rotulo && rotulo->property(PropiedadFactor).isValid())
            destaca(rotulo, rotulo->property(PropiedadFactor).toReal());
    }
}

int Aspecto::pasosDeLetra()
{
    return estado().pasos;
}

void Aspecto::ponMovimientoReducido(bool reducido)
{
    estado().movimientoReducido = reducido;
}

bool Aspecto::movimientoReducido()
{
    return estado().movimientoReducido;
}

void Aspecto::destaca(QLabel *rotulo, qreal factor)
{
    rotulo->setProperty(PropiedadFactor, factor);
    QFont letra = rotulo->font();
    letra.setPointSizeF(QApplication::font().pointSizeF() * factor);
    rotulo->setFont(letra);
}

QColor Aspecto::acento()
{
    return esOscuro() ? 0x5bb3d0 : 0x1f6f8b;
}

QColor Aspecto::exito()
{
    return esOscuro() ? 0x5ecb88 : 0x1f7d46;
}

QColor Aspecto::error()
{
    return esOscuro() ? 0xff8080 : 0xc0272d;
}

QColor Aspecto::atenuado()
{
    return QApplication::palette().color(QPalette::PlaceholderText);
}

QColor Aspecto::lienzo()
{
    return 0xf4f6fb;
}
