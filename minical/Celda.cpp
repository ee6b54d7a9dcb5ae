// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/Celda.h"

QString letraDeColumna(int columna)
{
    return columna > 0 ? QString(QChar(u'A' + columna - 1)) : QString();
}

QString NombreCelda(Celda celda)
{
    const QString fila = celda.fila > 0 ? QString::number(celda.fila) : QString();
    return letraDeColumna(celda.columna) + fila;
}

std::optional<Celda> celdaDeNombre(QStringView nombre)
{
    if (nombre.size() < 2 || nombre.size() > 3)
        return {};
    const Celda celda{nombre.sliced(1).toInt(), nombre.front().unicode() - u'A' + 1};
    // The name is made again to refuse what a number may also look like: "A01", "A+1".
    if (!celda.esDeDatos() || NombreCelda(celda) != nombre)
        return {};
    return celda;
}
