// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/Pasos.h"

#include <utility>

Pasos::Pasos(const QList<Paso> &pasos)
    : Pasos(pasos.size(), [pasos](qsizetype i) { return pasos.at(i); })
{
}

Pasos::Pasos(qsizetype cuantos, Hace hace) : m_cuantos(cuantos), m_hace(std::move(hace)) {}

Pasos &&Pasos::comoPelicula() &&
{
    m_animables = true;
    return std::move(*this);
}
