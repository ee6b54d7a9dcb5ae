// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Aspecto.h"

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <algorithm>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Fusion with room to breathe: its buttons and fields are tight for a finger or a far projector.
class Estilo : public QProxyStyle
{
public:
    Estilo() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

    QSize sizeFromContents(ContentsType tipo, const QStyleOption *opcion, const QSize &contenido,
                           const QWidget *control) const override
    {
        QSize tamano = QProxyStyle::sizeFromContents(tipo, opcion, contenido, control);
        if (tipo == CT_PushButton)
            tamano += QSize(16, 8);
        else if (tipo == CT_LineEdit || tipo == CT_SpinBox || tipo == CT_ComboBox)
            tamano += QSize(0, 6);
        else if (tipo == CT_TabBarTab)
            tamano += QSize(8, 6);
        return tamano;
    }

    int styleHint(StyleHint consejo, const QStyleOption *opcion, const QWidget *control,
                  QStyleHintReturn *vuelta) const override
    {
        if (consejo == SH_DialogButtonBox_ButtonsHaveIcons)
            return 0;
        return QProxyStyle::styleHint(consejo, opcion, control, vuelta);
    }

    void drawPrimitive(PrimitiveElement elemento, const QStyleOption *opcion, QPainter *pintor,
                       const QWidget *control) const override
    {
        const bool hecho =
            Aspecto::esOscuro() &&
            (dibujaAclarado<QStyleOptionButton>({PE_IndicatorRadioButton, PE_IndicatorCheckBox},
                                                elemento, opcion, pintor, control) ||
             dibujaAclarado<QStyleOptionFrame>({PE_PanelLineEdit, PE_FrameLineEdit, PE_Frame},
                                               elemento, opcion, pintor, control));
        if (!hecho)
            QProxyStyle::drawPrimitive(elemento, opcion, pintor, control);
    }

private:
    /// Fusion outlines marks, fields and frames darker than the window, which nobody sees on a dark
    /// one. Draws those of `cuales` with an outline that can be seen; false for any other element.
    template <typename Opcion>
    bool dibujaAclarado(std::initializer_list<PrimitiveElement> cuales, PrimitiveElement elemento,
                        const QStyleOption *opcion, QPainter *pintor, const QWidget *control) const
    {
        const auto *propia = qstyleoption_cast<const Opcion *>(opcion);
        if (!propia || std::find(cuales.begin(), cuales.end(), elemento) == cuales.end())
            return false;
        Opcion aclarada(*propia);
        aclarada.palette.setColor(QPalette::Window, Aspecto::atenuado());
        QProxyStyle::drawPrimitive(elemento, &aclarada, pintor, control);
        return true;
    }
};

/// Where a heading keeps by how much it is larger than ordinary text.
constexpr auto PropiedadFactor = "factorDeLetra";

struct Estado
{
    Aspecto::Tema tema = Aspecto::Tema::Sistema;
    bool sistemaOscuro = qApp->palette().window().color().lightness() < 128;
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
