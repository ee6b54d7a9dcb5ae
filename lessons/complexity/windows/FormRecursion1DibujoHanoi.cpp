// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/windows/FormRecursion1DibujoHanoi.h"

#include "lessons/complexity/GeometriaHanoi.h"
#include "lessons/complexity/TorresHanoi.h"
#include "shell/look/Aspecto.h"

#include <QPainter>

namespace {

QColor colorDe(int disco, int discos)
{
    return QColor::fromHsv(300 * (disco - 1) / discos, 105, 240);
}

} // namespace

FormRecursion1DibujoHanoi::FormRecursion1DibujoHanoi(QWidget *padre) : QWidget(padre)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FormRecursion1DibujoHanoi::muestra(const TorresHanoi *torres)
{
    m_torres = torres;
    update();
}

QSize FormRecursion1DibujoHanoi::sizeHint() const
{
    return minimumSizeHint() * 2;
}

QSize FormRecursion1DibujoHanoi::minimumSizeHint() const
{
    const int linea = fontMetrics().height();
    return {linea * 18, linea * 9};
}

void FormRecursion1DibujoHanoi::paintEvent(QPaintEvent *)
{
    if (!m_torres)
        return;
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const int letras = fontMetrics().height() + 4;
    const GeometriaHanoi geometria(QSizeF(width(), height() - letras), m_torres->discos());
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(Aspecto::atenuado());
    pintor.drawRoundedRect(geometria.base(), 4, 4);
    for (int palo = 0; palo < TorresHanoi::NumPalos; ++palo) {
        const QRectF vara = geometria.palo(palo);
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(Aspecto::atenuado());
        pintor.drawRoundedRect(vara, 2, 2);
        pintor.setPen(palette().color(QPalette::WindowText));
        pintor.drawText(QRectF(vara.center().x() - 50, height() - letras, 100, letras),
                        Qt::AlignCenter, QString(QChar(u'A' + palo)));
        const QList<int> &discos = m_torres->palo(palo);
        for (int altura = 0; altura < discos.size(); ++altura) {
            const int disco = discos.at(altura);
            const QRectF caja = geometria.disco(disco, palo, altura).adjusted(0, 1, 0, -1);
            pintor.setPen(QPen(QColor(0x22333b), 1));
            pintor.setBrush(colorDe(disco, m_torres->discos()));
            pintor.drawRoundedRect(caja, caja.height() / 3, caja.height() / 3);
            if (caja.height() >= fontMetrics().ascent())
                pintor.drawText(caja, Qt::AlignCenter, QString::number(disco));
        }
    }
}
