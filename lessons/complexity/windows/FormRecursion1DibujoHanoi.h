// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class TorresHanoi;

/// A drawing of the Towers of Hanoi as they stand.
class FormRecursion1DibujoHanoi : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion1DibujoHanoi(QWidget *padre = nullptr);

    /// The towers to draw, which outlive the drawing or are replaced; call again when they change.
    void muestra(const TorresHanoi *torres);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *suceso) override;

private:
    const TorresHanoi *m_torres = nullptr;
};
