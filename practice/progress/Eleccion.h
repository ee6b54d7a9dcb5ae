// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/progress/Dominio.h"

/// What a student has chosen to practise.
struct Eleccion
{
    QString leccion{}; ///< empty: whatever is next in the course
    QString clave{};   ///< of a kind of that lesson; empty: whatever is next in it
    int nivel = 0;     ///< 0: the one that is next

    /// That of a key as links name it: a lesson, a kind, or nothing at all; nothing where the bank
    /// has none of it.
    static std::optional<Eleccion> deClave(const QString &clave, int nivel);
};

/// The keys of all kinds, or of those of a lesson, in the order of the course.
QStringList clavesDelBanco(const QString &leccion = {});

/// The exercise that is next in what was chosen.
Propuesta propuestaDe(const Eleccion &eleccion, const QHash<QString, Dominio> &dominios,
                      qint64 hoy);
