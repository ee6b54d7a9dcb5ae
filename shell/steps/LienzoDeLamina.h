// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Lamina.h"

#include <QWidget>

/// Shows a drawing, tells it in words to screen readers, and copies it as a picture.
class LienzoDeLamina : public QWidget
{
    Q_OBJECT

public:
    explicit LienzoDeLamina(QWidget *padre = nullptr);

    void pon(const Lamina &lamina);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *suceso) override;
    void contextMenuEvent(QContextMenuEvent *suceso) override;

private:
    void copia() const;

    Lamina m_lamina;
};
