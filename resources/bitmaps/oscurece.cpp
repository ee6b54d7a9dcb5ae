// SPDX-License-Identifier: GPL-3.0-or-later
// oscurece DRAWING.svg DARK.svg: the drawing as it is on a dark page.
#include "shell/core/page/FiguraOscura.h"

#include <QFile>

int main(int cuantos, char **argumentos)
{
    if (cuantos != 3)
        return 2;
    QFile dibujo(QString::fromLocal8Bit(argumentos[1]));
    QFile oscuro(QString::fromLocal8Bit(argumentos[2]));
    if (!dibujo.open(QIODevice::ReadOnly) || !oscuro.open(QIODevice::WriteOnly))
        return 1;
    const QByteArray svg = figuraOscura(dibujo.readAll());
    return oscuro.write(svg) == svg.size() && oscuro.flush() ? 0 : 1;
}
