// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/engine/Sorteo.h"

#include <QByteArray>

namespace {

std::uint64_t mezcla(std::uint64_t z)
{
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
    return z ^ (z >> 31);
}

} // namespace

std::uint64_t Sorteo::siguiente()
{
    m_estado += 0x9e3779b97f4a7c15U;
    return mezcla(m_estado);
}

std::int64_t Sorteo::entre(std::int64_t a, std::int64_t b)
{
    const std::uint64_t cuantos = static_cast<std::uint64_t>(b) - static_cast<std::uint64_t>(a) + 1;
    if (cuantos == 0) // all of them
        return static_cast<std::int64_t>(siguiente());
    // The largest multiple of `cuantos` that fits: what lies beyond would favour the first values.
    const std::uint64_t sobra = (0 - cuantos) % cuantos;
    std::uint64_t r = siguiente();
    while (r < sobra)
        r = siguiente();
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + r % cuantos);
}

std::uint64_t semillaDe(std::uint64_t serie, const QString &tipo, int nivel, int lugar)
{
    std::uint64_t h = mezcla(serie + static_cast<std::uint64_t>(VersionDeSorteo));
    const QByteArray letras = tipo.toUtf8();
    for (const char letra : letras)
        h = mezcla(h ^ static_cast<unsigned char>(letra));
    return mezcla(mezcla(h ^ static_cast<std::uint64_t>(nivel)) ^
                  static_cast<std::uint64_t>(lugar));
}
