// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/progress/EjercicioEnCurso.h"

#include <QHash>
#include <QList>
#include <optional>

/// What a student commands of one kind of exercise. A level is mastered with 4 of the last 5
/// exercises unaided on two different days, and stays so; the highest one mastered is reviewed
/// after 1, 3, 7 and 21 days. (Practice over days and spaced review: N. J. Cepeda et al.,
/// "Distributed practice in verbal recall tasks", Psychological Bulletin 132, 2006.)
struct Dominio
{
    int dominado = 0;     ///< the highest level mastered; 0 none
    int propuesto = 1;    ///< the level to go on with
    int deLasUltimas = 0; ///< unaided among the last five of that level
    int hechos = 0;       ///< exercises of the kind in all
    qint64 ultimoDia = 0; ///< of the last one
    std::optional<qint64>
        repaso{}; ///< the day from which on a review is due; none when none is left

    bool tocaRepaso(qint64 hoy) const { return repaso && *repaso <= hoy; }
};

/// From all that was done of one kind, in its order, as seen on the day `hoy`. A day that lies
/// ahead of `hoy`, because the clock was changed since, counts as `hoy` less the time it asks for:
/// nothing is lost, a review comes at once at worst.
Dominio dominioDe(const QList<Hecho> &hechos, qint64 hoy);

/// The same of each kind that was tried, by its key.
QHash<QString, Dominio> dominios(const QList<Hecho> &hechos, qint64 hoy);

/// What to do next.
struct Propuesta
{
    enum Razon { Repaso, Siguiente, Nuevo, Todo };
    QString clave; ///< empty when there are no kinds
    int nivel = 1;
    Razon razon = Nuevo;
};

/// The review that has been due longest; else what was begun last and is not mastered; else the
/// first kind in the order of the course that has never been tried; else the one that was not
/// practised longest. `claves` are the kinds in the order of the course.
Propuesta loQueToca(const QStringList &claves, const QHash<QString, Dominio> &dominios, qint64 hoy);
