// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

/// Fusion with room to breathe, since its buttons and fields are tight for a finger or a far
/// projector, and so that the keyboard's place can be seen: an accent border around the field,
/// list, tab or page that has it, and no coloured selection in one that has not.
class Estilo : public QProxyStyle
{
public:
    Estilo();

    QSize sizeFromContents(ContentsType tipo, const QStyleOption *opcion, const QSize &contenido,
                           const QWidget *control) const override;
    int pixelMetric(PixelMetric medida, const QStyleOption *opcion,
                    const QWidget *control) const override;
    int styleHint(StyleHint consejo, const QStyleOption *opcion, const QWidget *control,
                  QStyleHintReturn *vuelta) const override;
    QIcon standardIcon(StandardPixmap cual, const QStyleOption *opcion,
                       const QWidget *control) const override;
    void drawPrimitive(PrimitiveElement elemento, const QStyleOption *opcion, QPainter *pintor,
                       const QWidget *control) const override;
    void drawControl(ControlElement elemento, const QStyleOption *opcion, QPainter *pintor,
                     const QWidget *control) const override;

private:
    void dibujaAclarado(PrimitiveElement elemento, const QStyleOption *opcion, QPainter *pintor,
                        const QWidget *control) const;
};
