// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <cstdint>

/// The generator of the exercises: the same seed draws the same ones on every machine, in every
/// version of the program that states the same VersionDeSorteo. (Source of the generator: G. L.
/// Steele Jr., D. Lea, C. H. Flood, "Fast splittable pseudorandom number generators", 2014.) Not
/// for secrets.
class Sorteo
{
public:
    explicit Sorteo(std::uint64_t semilla) : m_estado(semilla) {}

    /// Uniform over a … b (a ≤ b), by rejection: no value is drawn more often than another.
    std::int64_t entre(std::int64_t a, std::int64_t b);

    bool moneda() { return entre(0, 1) == 1; }

    /// One of a list that is not empty.
    template <typename T>
    const T &de(const QList<T> &lista)
    {
        return lista[entre(0, lista.size() - 1)];
    }

    /// The list in an order drawn uniformly.
    template <typename T>
    QList<T> barajada(QList<T> lista)
    {
        for (qsizetype i = lista.size() - 1; i > 0; --i)
            std::swap(lista[i], lista[entre(0, i)]);
        return lista;
    }

private:
    std::uint64_t siguiente();

    std::uint64_t m_estado;
};

/// Changes with every change of what a seed draws; it stands in the code of a sheet.
inline constexpr int VersionDeSorteo = 1;

/// The seed of one exercise of a series: kinds, levels and places do not share draws.
std::uint64_t semillaDe(std::uint64_t serie, const QString &tipo, int nivel, int lugar);
