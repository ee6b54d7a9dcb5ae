// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/answers/LectorDeRespuestas.h"

#include <QString>
#include <functional>

/// What is said about an answer: whether it is right, and a word about why. One that cannot be
/// read, or that repeats the question, is not judged at all.
struct Juicio
{
    bool acertada = false;
    QString palabra;
    bool juzgada = true;
};

/// What judges an answer that has been read: the digits of the number, of a sum those of its
/// summands joined by "+". Throws what Evalua throws.
using Juez = std::function<Juicio(const QString &leida)>;

/// An exercise: what is asked, what an answer looks like, and its judge.
struct Cuestion
{
    QString enunciado;
    QString ejemplo;
    Juez juez;
    FormaDeRespuesta forma = {};

    /// Reads an answer, then judges it. Throws what Evalua throws.
    Juicio juzga(const QString &respuesta) const;
};
