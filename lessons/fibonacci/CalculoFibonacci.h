#pragma once

#include "shell/core/Corrida.h"

#include <QString>

/// The ways of computing F(n), F(0) = 0, F(1) = 1, that the lesson compares.
enum class MetodoFibonacci {
    Definicion, ///< F(n) = F(n-1) + F(n-2), as it stands: each call makes two more
    Iteracion,  ///< n - 1 additions, upwards from F(0) and F(1)
    /// F(2k) = F(k) (2 F(k+1) - F(k)) and F(2k+1) = F(k)² + F(k+1)², a step for each binary digit
    /// of n: Edsger W. Dijkstra, "In honour of Fibonacci" (EWD 654), 1978.
    Duplicacion
};

/// The largest n that a method takes: what the service holds or, by the definition, what takes
/// minutes.
int cotaDe(MetodoFibonacci metodo);

/// How much work a computation has been. Additions include subtractions, and twofolds, which are
/// additions of a number to itself.
struct Esfuerzo
{
    qint64 llamadas = 0;
    qint64 sumas = 0;
    qint64 productos = 0;

    bool operator==(const Esfuerzo &) const = default;
};

/// One computation of F(n), which can be watched while it runs.
class CalculoFibonacci
{
public:
    /// F(n) for n from 0 to the bound of the method; empty when the run was stopped. Yields once a
    /// call or addition.
    QString calcula(MetodoFibonacci metodo, int n, Corrida &corrida);

    const Esfuerzo &esfuerzo() const { return m_esfuerzo; }

private:
    qint64 porDefinicion(int n, Corrida &corrida);
    QString porIteracion(int n, Corrida &corrida);
    QString porDuplicacion(int n, Corrida &corrida);

    Esfuerzo m_esfuerzo;
};
