// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page/FiguraOscura.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cstdint>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Of the light palette, each colour and what stands for it on a dark ground: at least as far from
/// that as the first is from white.
struct Pareja
{
    std::uint32_t claro, oscuro;
};
constexpr std::array Paleta{Pareja{0x1f6f8b, 0x5bb3d0},  // teal
                            Pareja{0xe4572e, 0xff8a66},  // coral
                            Pareja{0xf2a541, 0xf5b866},  // gold
                            Pareja{0x2e9e5b, 0x5ecb88},  // green
                            Pareja{0xd1383d, 0xff8080},  // red
                            Pareja{0x22333b, 0xe4eaed},  // ink
                            Pareja{0xffffff, 0x171c20},  // paper
                            Pareja{0xf4f6fb, 0x171c20}}; // what is drawn in the colour of the card

/// The ground and the ink of a dark page, between which all other colours lie.
constexpr std::array<int, 3> Fondo{0x17, 0x1c, 0x20};
constexpr std::array<int, 3> Tinta{0xe4, 0xea, 0xed};

/// Adding one number to all three parts turns lightness around and leaves hue and saturation (of
/// HSL) as they are.
std::uint32_t vuelto(std::uint32_t color)
{
    const std::array<int, 3> partes{int(color >> 16 & 0xff), int(color >> 8 & 0xff),
                                    int(color & 0xff)};
    const auto [menor, mayor] = std::minmax_element(partes.begin(), partes.end());
    const int suma = 255 - *menor - *mayor;
    std::uint32_t oscuro = 0;
    for (std::size_t i = 0; i < partes.size(); ++i) {
        const int parte = Fondo[i] + (partes[i] + suma) * (Tinta[i] - Fondo[i]) / 255;
        oscuro = oscuro << 8 | static_cast<std::uint32_t>(parte);
    }
    return oscuro;
}

std::uint32_t oscuro(std::uint32_t color)
{
    const auto pareja = std::find_if(Paleta.begin(), Paleta.end(),
                                     [color](const Pareja &p) { return p.claro == color; });
    return pareja == Paleta.end() ? vuelto(color) : pareja->oscuro;
}

} // namespace

QByteArray figuraOscura(const QByteArray &svg)
{
    static const QRegularExpression carta(u"<rect x=\"0\" y=\"0\"[^<>]*fill=\"#f4f6fb\"[^<>]*/>"_s);
    static const QRegularExpression color(u"(?<==\")#([0-9a-fA-F]{6})(?=\")"_s);
    QString texto = QString::fromUtf8(svg);
    if (const auto hallada = carta.match(texto); hallada.hasMatch())
        texto.remove(hallada.capturedStart(), hallada.capturedLength());
    QString salida;
    qsizetype leido = 0;
    auto colores = color.globalMatch(texto);
    while (colores.hasNext()) {
        const auto este = colores.next();
        salida += QStringView(texto).mid(leido, este.capturedStart() - leido);
        salida += u"#%1"_s.arg(oscuro(este.captured(1).toUInt(nullptr, 16)), 6, 16, QChar(u'0'));
        leido = este.capturedEnd();
    }
    salida += QStringView(texto).mid(leido);
    return salida.toUtf8();
}
