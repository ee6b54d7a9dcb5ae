// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/FibonacciRecursivo.h"

#include <QString>

/// The ways of computing F(n), F(0) = 0, F(1) = 1, that the lesson compares.
enum class MetodoFibonacci {
    Definicion, ///< F(n) = F(n-1) + F(n-2), as it stands: each call makes two more
    Iteracion,  ///< n - 1 additions, upwards from F(0) and F(1)
    Duplicacion ///< from F(k), F(k+1) to F(2k), F(2k+1), for each binary digit of n
};

/// The largest n that a method takes: what the service holds or, by the definition, what takes
/// minutes.
int cotaDe(MetodoFibonacci metodo);

/// How much work one computation is. Additions include subtractions, and twofolds, which are
/// additions of a number to itself.
struct Esfuerzo
{
    qint64 llamadas = 0;
    qint64 sumas = 0;
    qint64 productos = 0;

    bool operator==(const Esfuerzo &) const = default;
};

/// F(n) and what one computation of it costs. All methods are timed on numbers, so that their times
/// can be compared; the reading and writing of texts does not count.
struct FibonacciMedido
{
    QString valor;           ///< empty when the run was stopped
    Esfuerzo esfuerzo;       ///< of one computation, or the calls until the stop
    double nanosegundos = 0; ///< at the fastest of several turns
};

/// One computation of F(n), which can be watched while it runs.
class CalculoFibonacci
{
public:
    /// F(n) for n from 0 to the bound of the method. The object outlives the task.
    Tarea<FibonacciMedido> calcula(MetodoFibonacci metodo, int n, Billete billete);

    /// The calls made so far; 0 where the method makes none.
    qint64 llamadas() const { return m_definicion.llamadas(); }

private:
    Tarea<FibonacciMedido> porDefinicion(int n, Billete billete);

    FibonacciRecursivo m_definicion;
};
