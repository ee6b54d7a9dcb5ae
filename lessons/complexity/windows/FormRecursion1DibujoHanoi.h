// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class GeometriaHanoi;
class TorresHanoi;

/// A drawing of the Towers of Hanoi as they stand, on which poles are chosen: with the mouse, by a
/// click or by dragging from one to another; with the keys A, B, C or 1, 2, 3, or the arrows and
/// Space. A disc that has been lifted hangs over the pole under the pointer until it is put down.
class FormRecursion1DibujoHanoi : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion1DibujoHanoi(QWidget *padre = nullptr);

    /// The towers to draw, which outlive the drawing or are replaced; call again when they change.
    void muestra(const TorresHanoi *torres);

    /// Lifts the highest disc of a pole, which has one.
    void levanta(int palo);
    /// Puts it back.
    void suelta();
    /// The pole whose highest disc is lifted; -1 when none is.
    int levantado() const { return m_levantado; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void paloElegido(int palo);

protected:
    void paintEvent(QPaintEvent *suceso) override;
    void mousePressEvent(QMouseEvent *suceso) override;
    void mouseMoveEvent(QMouseEvent *suceso) override;
    void mouseReleaseEvent(QMouseEvent *suceso) override;
    void keyPressEvent(QKeyEvent *suceso) override;
    void focusInEvent(QFocusEvent *suceso) override;
    void focusOutEvent(QFocusEvent *suceso) override;

private:
    int paloBajo(QPointF lugar) const;
    void ponCursor(int palo);
    bool mueveCursor(int tecla);
    void describe();
    void pintaPalo(QPainter &pintor, const GeometriaHanoi &geometria, int palo) const;
    void pintaDisco(QPainter &pintor, const QRectF &lugar, int disco) const;

    const TorresHanoi *m_torres = nullptr;
    int m_cursor = 0; ///< the pole that Space chooses
    int m_levantado = -1;
    bool m_arrastra = false; ///< the button that lifted the disc is still down
};
