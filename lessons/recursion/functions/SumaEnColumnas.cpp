// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/SumaEnColumnas.h"

#include <algorithm>

SumaEnColumnas::SumaEnColumnas(const QString &numero)
{
    int acarreo = 0;
    for (qsizetype i = 0; i < numero.size(); ++i) {
        m_columnas.append(
            {numero[numero.size() - 1 - i].digitValue(), numero[i].digitValue(), acarreo});
        acarreo = m_columnas.last().suma() / 10;
    }
}

int SumaEnColumnas::acarreos() const
{
    return static_cast<int>(std::count_if(m_columnas.begin(), m_columnas.end(),
                                          [](const Columna &c) { return c.conAcarreo(); }));
}

std::optional<qsizetype> SumaEnColumnas::desigual() const
{
    for (qsizetype i = 0; i < opuesta(i); ++i) {
        if (m_columnas[i].llega != m_columnas[opuesta(i)].llega)
            return i;
    }
    return {};
}
