// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/Fotograma.h"

#include <QVideoFrame>
#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// Where a value of luminance or of a difference of colour stands in sixteen bits of fraction, so
/// that a point costs additions alone. (ITU-R, "Recommendation BT.601-7", 2011: levels 16 to 235
/// and 16 to 240 about 128.)
struct Tablas
{
    std::array<int, 256> luz{};
    std::array<int, 256> rojoDeV{}, verdeDeV{}, verdeDeU{}, azulDeU{};

    Tablas()
    {
        constexpr double uno = 65536;
        for (int i = 0; i < 256; ++i) {
            const auto lugar = static_cast<std::size_t>(i);
            const double color = uno * (i - 128) * 255 / 224;
            luz[lugar] = static_cast<int>(std::lround(uno * (i - 16) * 255 / 219 + uno / 2));
            rojoDeV[lugar] = static_cast<int>(std::lround(1.402 * color));
            verdeDeV[lugar] = static_cast<int>(std::lround(-0.714136 * color));
            verdeDeU[lugar] = static_cast<int>(std::lround(-0.344136 * color));
            azulDeU[lugar] = static_cast<int>(std::lround(1.772 * color));
        }
    }
};

int octeto(int valor)
{
    return std::clamp(valor >> 16, 0, 255);
}

/// The points of a mapped frame whose planes are Y, U and V, the last two of half its size.
QImage deTresPlanos(const QVideoFrame &fotograma)
{
    static const Tablas tablas;
    QImage imagen(fotograma.size(), QImage::Format_RGB32);
    for (int y = 0; y < imagen.height(); ++y) {
        const auto fila = [&](int plano, int cual) {
            return fotograma.bits(plano) + std::ptrdiff_t{cual} * fotograma.bytesPerLine(plano);
        };
        const uchar *luces = fila(0, y);
        const uchar *us = fila(1, y / 2);
        const uchar *vs = fila(2, y / 2);
        auto *puntos = reinterpret_cast<QRgb *>(imagen.scanLine(y));
        for (int x = 0; x < imagen.width(); ++x) {
            const int luz = tablas.luz[luces[x]];
            const uchar u = us[x / 2];
            const uchar v = vs[x / 2];
            puntos[x] = qRgb(octeto(luz + tablas.rojoDeV[v]),
                             octeto(luz + tablas.verdeDeU[u] + tablas.verdeDeV[v]),
                             octeto(luz + tablas.azulDeU[u]));
        }
    }
    return imagen;
}

} // namespace

QImage imagenDe(const QVideoFrame &fotograma)
{
    if (fotograma.pixelFormat() != QVideoFrameFormat::Format_YUV420P)
        return fotograma.toImage();
    QVideoFrame esta = fotograma;
    if (!esta.map(QVideoFrame::ReadOnly))
        return {};
    QImage imagen = deTresPlanos(esta);
    esta.unmap();
    return imagen;
}
