// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Banco.h"

using Numeros = QList<qint64>;

/// An exercise as a student has it: its level, its words, the numbers among them.
struct Leido
{
    int nivel;
    QString texto;
    Numeros n;
};

/// An answer without its text: numbers or a word.
struct Dada
{
    Numeros n;
    QString palabra = {};

    RespuestaLeida leida() const
    {
        RespuestaLeida r{RespuestaLeida::Leida, {}, palabra, {}};
        for (const qint64 x : n)
            r.numeros << QString::number(x);
        return r;
    }
};

struct Sorteado
{
    Ejercicio ejercicio;
    Leido leido;
};

/// Draw i of a kind and level.
Sorteado sortea(const TipoDeEjercicio &tipo, int nivel, int i);

/// What is expected, without the reader of answers, for which there is a test of its own.
Dada esperada(const Ejercicio &ejercicio);
