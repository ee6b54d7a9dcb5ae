// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/windows/FormRecursion1DibujoHanoi.h"

#include "lessons/complexity/GeometriaHanoi.h"
#include "lessons/complexity/PasosDeHanoi.h"
#include "lessons/complexity/TorresHanoi.h"
#include "shell/access/Papel.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QColor colorDe(int disco, int discos)
{
    return QColor::fromHsv(300 * (disco - 1) / discos, 105, 240);
}

} // namespace

FormRecursion1DibujoHanoi::FormRecursion1DibujoHanoi(QWidget *padre) : QWidget(padre)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    ponPapel(this, QAccessible::Graphic);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void FormRecursion1DibujoHanoi::muestra(const TorresHanoi *torres)
{
    m_torres = torres;
    describe();
    update();
}

void FormRecursion1DibujoHanoi::levanta(int palo)
{
    m_levantado = palo;
    describe();
    update();
}

void FormRecursion1DibujoHanoi::suelta()
{
    levanta(-1);
}

/// What is seen, in words: the discs of each pole, and the pole that Space would choose.
void FormRecursion1DibujoHanoi::describe()
{
    if (!m_torres)
        return;
    QStringList palos;
    for (int palo = 0; palo < TorresHanoi::NumPalos; ++palo) {
        QStringList discos;
        for (const int disco : m_torres->palo(palo))
            discos << QString::number(disco);
        palos << nombreDePalo(palo) + u": "_s + discos.join(u", "_s);
    }
    palos << Traduce(u"Palo elegido: %1"_s).arg(nombreDePalo(m_cursor));
    if (m_levantado >= 0)
        palos << Traduce(u"Disco levantado: %1"_s).arg(m_torres->palo(m_levantado).last());
    setAccessibleDescription(palos.join(u". "_s));
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

int FormRecursion1DibujoHanoi::paloBajo(QPointF lugar) const
{
    const int palo = static_cast<int>(lugar.x() * TorresHanoi::NumPalos / std::max(1, width()));
    return std::clamp(palo, 0, TorresHanoi::NumPalos - 1);
}

void FormRecursion1DibujoHanoi::ponCursor(int palo)
{
    if (palo == m_cursor)
        return;
    m_cursor = palo;
    describe();
    update();
}

void FormRecursion1DibujoHanoi::mousePressEvent(QMouseEvent *suceso)
{
    if (suceso->button() != Qt::LeftButton)
        return;
    const bool habia = m_levantado >= 0;
    ponCursor(paloBajo(suceso->position()));
    Q_EMIT paloElegido(m_cursor);
    m_arrastra = !habia && m_levantado >= 0;
}

/// A lifted disc goes with the pointer.
void FormRecursion1DibujoHanoi::mouseMoveEvent(QMouseEvent *suceso)
{
    if (m_levantado >= 0)
        ponCursor(paloBajo(suceso->position()));
}

/// Where the button comes up over another pole, the disc was dragged there; refused, it goes back.
void FormRecursion1DibujoHanoi::mouseReleaseEvent(QMouseEvent *suceso)
{
    const int palo = paloBajo(suceso->position());
    if (suceso->button() == Qt::LeftButton && m_arrastra && palo != m_levantado) {
        Q_EMIT paloElegido(palo);
        suelta();
    }
    m_arrastra = false;
}

/// Whether the key moves the cursor; the letters of the poles and their numbers choose as well.
bool FormRecursion1DibujoHanoi::mueveCursor(int tecla)
{
    constexpr int Ultimo = TorresHanoi::NumPalos - 1;
    if (tecla == Qt::Key_Left || tecla == Qt::Key_Right) {
        ponCursor(std::clamp(m_cursor + (tecla == Qt::Key_Left ? -1 : 1), 0, Ultimo));
        return true;
    }
    const int letra = tecla - Qt::Key_A;
    const int numero = tecla - Qt::Key_1;
    const int palo = letra >= 0 && letra <= Ultimo ? letra : numero;
    if (palo < 0 || palo > Ultimo)
        return false;
    ponCursor(palo);
    Q_EMIT paloElegido(palo);
    return true;
}

void FormRecursion1DibujoHanoi::keyPressEvent(QKeyEvent *suceso)
{
    if (suceso->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) {
        QWidget::keyPressEvent(suceso);
        return;
    }
    const int tecla = suceso->key();
    if (tecla == Qt::Key_Space || tecla == Qt::Key_Return || tecla == Qt::Key_Enter)
        Q_EMIT paloElegido(m_cursor);
    else if (!mueveCursor(tecla))
        QWidget::keyPressEvent(suceso);
}

void FormRecursion1DibujoHanoi::focusInEvent(QFocusEvent *)
{
    update();
}

void FormRecursion1DibujoHanoi::focusOutEvent(QFocusEvent *)
{
    update();
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
    for (int palo = 0; palo < TorresHanoi::NumPalos; ++palo)
        pintaPalo(pintor, geometria, palo);
    if (m_levantado >= 0) {
        const int disco = m_torres->palo(m_levantado).last();
        pintaDisco(pintor, geometria.disco(disco, m_cursor, m_torres->discos()), disco);
    }
}

void FormRecursion1DibujoHanoi::pintaPalo(QPainter &pintor, const GeometriaHanoi &geometria,
                                          int palo) const
{
    const QRectF vara = geometria.palo(palo);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(Aspecto::atenuado());
    pintor.drawRoundedRect(vara, 2, 2);
    const int letras = fontMetrics().height() + 4;
    const QRectF rotulo(vara.center().x() - letras, height() - letras, 2 * letras, letras);
    if (hasFocus() && palo == m_cursor) {
        pintor.setPen(QPen(palette().highlight().color(), 2));
        pintor.setBrush(Qt::NoBrush);
        pintor.drawRoundedRect(rotulo.adjusted(1, 1, -1, -1), 4, 4);
    }
    pintor.setPen(palette().color(QPalette::WindowText));
    pintor.drawText(rotulo, Qt::AlignCenter, nombreDePalo(palo));
    QList<int> discos = m_torres->palo(palo);
    if (palo == m_levantado)
        discos.removeLast();
    for (int altura = 0; altura < discos.size(); ++altura)
        pintaDisco(pintor, geometria.disco(discos.at(altura), palo, altura), discos.at(altura));
}

void FormRecursion1DibujoHanoi::pintaDisco(QPainter &pintor, const QRectF &lugar, int disco) const
{
    const QRectF caja = lugar.adjusted(0, 1, 0, -1);
    pintor.setPen(QPen(QColor(0x22333b), 1));
    pintor.setBrush(colorDe(disco, m_torres->discos()));
    pintor.drawRoundedRect(caja, caja.height() / 3, caja.height() / 3);
    if (caja.height() >= fontMetrics().ascent())
        pintor.drawText(caja, Qt::AlignCenter, QString::number(disco));
}
