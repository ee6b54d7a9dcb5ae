// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/SinFondo.h"

#include <QColor>
#include <QList>
#include <QPoint>
#include <algorithm>
#include <cstdlib>

namespace {

/// The sum of the differences of the three parts: up to the first, a pixel is ground with the noise
/// of the film; from the second on it has no ground in it.
constexpr int Ruido = 20;
constexpr int Puro = 260;

int diferencia(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
           std::abs(qBlue(a) - qBlue(b));
}

/// The pixel without the share of ground that is mixed into it.
QRgb desmezclado(QRgb mezcla, QRgb fondo)
{
    const int alfa = std::min(255, 255 * diferencia(mezcla, fondo) / Puro);
    if (alfa == 0)
        return 0;
    const auto parte = [alfa](int m, int f) {
        return std::clamp(f + (m - f) * 255 / alfa, 0, 255);
    };
    return qRgba(parte(qRed(mezcla), qRed(fondo)), parte(qGreen(mezcla), qGreen(fondo)),
                 parte(qBlue(mezcla), qBlue(fondo)), alfa);
}

/// Goes over the ground from the edge of the picture inwards.
class Vaciado
{
public:
    Vaciado(QImage &imagen, QRgb fondo)
        : m_imagen(imagen), m_fondo(fondo), m_visto(imagen.width() * imagen.height(), false)
    {
    }

    void hazlo()
    {
        const int ancho = m_imagen.width(), alto = m_imagen.height();
        for (int x = 0; x < ancho; ++x) {
            llega({x, 0}, Hondura);
            llega({x, alto - 1}, Hondura);
        }
        for (int y = 0; y < alto; ++y) {
            llega({0, y}, Hondura);
            llega({ancho - 1, y}, Hondura);
        }
        while (!m_cola.isEmpty())
            sigue(m_cola.takeLast());
    }

private:
    /// How many pixels the soft border is wide.
    static constexpr int Hondura = 2;

    struct Lugar
    {
        QPoint punto;
        int hondura; ///< how much further into the drawing one may go
    };

    void llega(QPoint p, int hondura)
    {
        if (m_imagen.rect().contains(p) && !visto(p)) {
            visto(p) = true;
            m_cola.append({p, hondura});
        }
    }

    void sigue(const Lugar &lugar)
    {
        QRgb &pixel = reinterpret_cast<QRgb *>(m_imagen.scanLine(lugar.punto.y()))[lugar.punto.x()];
        const bool esFondo = diferencia(pixel, m_fondo) <= Ruido;
        pixel = esFondo ? 0 : desmezclado(pixel, m_fondo);
        const int queda = esFondo ? Hondura : lugar.hondura - 1;
        if (queda <= 0)
            return;
        for (const QPoint paso : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
            llega(lugar.punto + paso, queda);
    }

    bool &visto(QPoint p) { return m_visto[p.y() * m_imagen.width() + p.x()]; }

    QImage &m_imagen;
    QRgb m_fondo;
    QList<bool> m_visto;
    QList<Lugar> m_cola;
};

} // namespace

QImage sinFondo(const QImage &fotograma, const QColor &fondo)
{
    QImage imagen = fotograma.convertToFormat(QImage::Format_ARGB32);
    Vaciado(imagen, fondo.rgb()).hazlo();
    return imagen;
}
