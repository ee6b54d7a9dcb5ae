// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/steps/ClaveEnCifras.h"
#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"
#include "shell/core/steps/Pasos.h"

#include <QStringList>

/// The ways in which the bench tries to read what a key has encrypted.
enum class Ataque {
    TablaDeBloques, ///< all blocks encrypted beforehand, for one character a block
    Factorizacion,  ///< trial division, and the number service for short numbers
    Fermat,         ///< a difference of squares, for primes close to each other
    RaizDeS,        ///< the s-th root of a block whose power has not passed q
    FiConocida,     ///< the primes from q and φ(q)
};

/// What the attacker has: the public key and blocks that were intercepted; φ(q), which only
/// FiConocida looks at.
struct Victima
{
    QString q, s;
    int r = 1;
    QStringList bloques;
    QString fi = {};
};

/// How an attack ended, and why.
struct ResultadoDeAtaque
{
    enum Desenlace {
        Encontrado, ///< the primes or the text, or both
        NoHay,      ///< what was looked for does not exist: more work would not find it
        Abandonado, ///< it may exist, but not within what the bench is willing to compute
        Detenido    ///< by the student
    };
    Desenlace desenlace = Abandonado;
    QString texto = {};        ///< what the blocks say, where it was read
    QStringList factores = {}; ///< of q, where they were found, the smaller one first
    QString t = {};            ///< that undoes s, where the factors give one
    Pasos pasos = {};          ///< at least two: what is known, …, how it ended
};

/// The blocks of a short word encrypted with the public half of a key.
Tarea<Victima> intercepta(ClaveEnCifras clave, Billete billete);

/// One attack, within bounds of its own, some seconds for keys of up to some hundred digits;
/// stopped sooner by the ticket. Throws nothing for numbers of any size: those that the service
/// cannot hold are given up.
Tarea<ResultadoDeAtaque> ataca(Ataque ataque, Victima victima, Billete billete);
