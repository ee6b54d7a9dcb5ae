// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPoint>
#include <QString>
#include <QStringList>

/// A lesson as a part of the course.
struct LeccionDelCurso
{
    QString clave;     ///< "euclides": the first part of the keys of its kinds
    QString titulo;    ///< Spanish, as in the menu
    QStringList antes; ///< keys of the lessons that it builds on
    QPoint sitio;      ///< column and row in the map
};

/// The lessons in an order in which each comes after those that it builds on.
const QList<LeccionDelCurso> &curso();

/// The lesson of that key; null when there is none.
const LeccionDelCurso *leccionDelCurso(const QString &clave);
