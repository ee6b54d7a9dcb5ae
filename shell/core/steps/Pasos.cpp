// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/Pasos.h"

#include <utility>

struct Pasos::Aplazados
{
    std::function<Pasos()> hace; ///< empty once it has been asked
    Pasos hechos;
};

Pasos::Pasos(const QList<Paso> &pasos)
    : Pasos(pasos.size(), [pasos](qsizetype i) { return pasos.at(i); })
{
}

Pasos::Pasos(qsizetype cuantos, Hace hace) : m_cuantos(cuantos), m_hace(std::move(hace)) {}

Pasos Pasos::aplazados(std::function<Pasos()> hace)
{
    Pasos pasos;
    pasos.m_aplazados = std::make_shared<Aplazados>(Aplazados{std::move(hace), {}});
    return pasos;
}

const Pasos &Pasos::hechos() const
{
    if (!m_aplazados)
        return *this;
    if (m_aplazados->hace) {
        m_aplazados->hechos = m_aplazados->hace().hechos();
        m_aplazados->hace = nullptr;
    }
    return m_aplazados->hechos;
}

Pasos Pasos::seguidos(const QList<Pasos> &partes)
{
    return aplazados([partes] {
        qsizetype cuantos = 0;
        for (const Pasos &parte : partes)
            cuantos += parte.cuantos();
        return Pasos(cuantos, [partes](qsizetype i) {
            qsizetype cual = 0;
            while (i >= partes.at(cual).cuantos())
                i -= partes.at(cual++).cuantos();
            return partes.at(cual).paso(i);
        });
    });
}

Pasos &&Pasos::comoPelicula() &&
{
    m_animables = true;
    return std::move(*this);
}
