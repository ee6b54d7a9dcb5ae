// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/congruences/SistemaCongruencias.h"
#include "shell/core/steps/EnteroLargo.h"

#include <QList>

/// x ≡ resto (mod modulo), with the number under which the row stands in the grid.
struct FilaDelTCR
{
    int numero;
    EnteroLargo resto, modulo;
};

/// The counting rows as numbers.
QList<FilaDelTCR> filasDelTCR(const SistemaCongruencias &sistema);

/// The row of a system of coprime moduli in Gauss's construction: the others' product, its inverse
/// modulo the row's modulus, and what the row adds to the sum.
struct SumandoDelTCR
{
    EnteroLargo cociente; ///< Mi = M/mi
    EnteroLargo reducido; ///< Mi modulo mi
    EnteroLargo inverso;
    EnteroLargo sumando;
};

/// A system of coprime moduli, solved.
struct SumaDelTCR
{
    EnteroLargo producto;
    QList<SumandoDelTCR> sumandos = {};
    EnteroLargo suma = {}, solucion = {};
};
SumaDelTCR sumaDelTCR(const QList<FilaDelTCR> &filas);
bool sonCoprimos(const QList<FilaDelTCR> &filas);

/// Two congruences on the way to one: x ≡ r (mod m), which stands for the rows before, and the next
/// row. With d = mcd(m, modulus of the row), x = r + m·k and (m/d)·k ≡ (resto − r)/d (mod
/// modulo/d).
struct UnionDelTCR
{
    EnteroLargo r, m;
    FilaDelTCR fila;
    EnteroLargo d;
    bool seContradicen = false;
    /// What follows says nothing where they contradict each other.
    EnteroLargo inverso = {}, k = {}, nuevoResto = {}, nuevoModulo = {};
};
/// As many as it takes to join all rows, or to find two that contradict each other.
QList<UnionDelTCR> unionesDelTCR(const QList<FilaDelTCR> &filas);
