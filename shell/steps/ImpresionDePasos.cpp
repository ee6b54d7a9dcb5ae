// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/ImpresionDePasos.h"

#include "shell/steps/PasoCompuesto.h"
#include "shell/steps/PintorDeLamina.h"

#include <QPainter>
#include <QPrinter>
#include <algorithm>

namespace {

constexpr qsizetype MasPasosImpresos = 500;

/// A page that is filled from above; what does not fit begins the next one.
class Hojas
{
public:
    Hojas(QPrinter &impresora, QPainter &pintor)
        : m_impresora(impresora),
          m_pintor(pintor),
          m_hoja(QPointF(), impresora.pageRect(QPrinter::DevicePixel).size())
    {
    }

    qreal ancho() const { return m_hoja.width(); }
    qreal alto() const { return m_hoja.height(); }

    /// The top left corner of a place that high.
    QPointF sitio(qreal alto)
    {
        if (m_y > 0 && m_y + alto > m_hoja.height()) {
            m_impresora.newPage();
            m_y = 0;
        }
        const QPointF esquina(0, m_y);
        m_y += alto;
        return esquina;
    }

    QPainter &pintor() { return m_pintor; }

private:
    QPrinter &m_impresora;
    QPainter &m_pintor;
    QRectF m_hoja;
    qreal m_y = 0;
};

void imprimeUno(Hojas &hojas, const Paso &paso, qsizetype numero, const QFont &fuente)
{
    const TintasDePaso tintas = TintasDePaso::dePapel();
    const PasoCompuesto compuesto(paso, numero, fuente, hojas.ancho());
    const qreal aire = hojas.alto() / 80;
    compuesto.pinta(hojas.pintor(), hojas.sitio(compuesto.alto() + aire), tintas);
    if (paso.lamina.vacia())
        return;
    const qreal alto = std::min(hojas.ancho() * 0.5, hojas.alto() * 0.4);
    const QRectF hueco(hojas.sitio(alto + aire), QSizeF(hojas.ancho(), alto));
    pintaLamina(hojas.pintor(), paso.lamina, hueco, tintas);
}

} // namespace

bool imprimePasos(QPrinter &impresora, const Pasos &pasos, const QString &titulo)
{
    QPainter pintor;
    if (!pintor.begin(&impresora))
        return false;
    // A font of the printer's resolution measures as it prints.
    QFont fuente(pintor.font(), &impresora);
    fuente.setPointSizeF(11);
    QFont cabecera = fuente;
    cabecera.setBold(true);
    cabecera.setPointSizeF(15);
    Hojas hojas(impresora, pintor);
    pintor.setFont(cabecera);
    const qreal alto = QFontMetricsF(cabecera, &impresora).height();
    pintor.drawText(QRectF(hojas.sitio(2 * alto), QSizeF(hojas.ancho(), alto)), Qt::AlignLeft,
                    titulo);
    for (qsizetype i = 0; i < std::min(pasos.cuantos(), MasPasosImpresos); ++i)
        imprimeUno(hojas, pasos.paso(i), i, fuente);
    return pintor.end();
}
