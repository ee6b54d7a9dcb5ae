// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QString>
#include <array>
#include <optional>

/// What the three algorithms took for one number.
struct MedidaDeCoste
{
    static constexpr int Algoritmos = 3; ///< naive, improved, advanced

    int bits = 0;
    QString numero;
    /// Nanoseconds; nothing for an algorithm that has left the race.
    std::array<std::optional<double>, Algoritmos> nanosegundos = {};

    double logNumero() const; ///< log₁₀ of the number
};

/// The three algorithms of the lesson on random numbers of growing size, each until it takes too
/// long or its numbers end.
class CosteDeFactorizar
{
public:
    enum class Numeros {
        DosPrimos, ///< products of two primes of like size, the hardest to divide
        Primos
    };
    /// Why an algorithm has left the race.
    enum class Retirada { Ninguna, Tiempo, Tamano };

    static constexpr int PrimerosBits = 8;
    static constexpr int UltimosBits = 140;

    explicit CosteDeFactorizar(Numeros numeros) : m_numeros(numeros) {}

    /// The bits of the next number.
    int bits() const { return m_bits; }
    bool terminado() const;
    Retirada retirada(int algoritmo) const
    {
        return m_retiradas.at(static_cast<std::size_t>(algoritmo));
    }

    /// Times them on the next number; nothing when the run was stopped. Only while not
    /// `terminado()`; the race outlives the task.
    Tarea<std::optional<MedidaDeCoste>> siguiente(Billete billete);

private:
    Tarea<std::optional<double>> mide(int algoritmo, QString numero, Billete billete);
    QString sorteado() const;

    Numeros m_numeros;
    int m_bits = PrimerosBits;
    std::array<Retirada, MedidaDeCoste::Algoritmos> m_retiradas = {};
};
