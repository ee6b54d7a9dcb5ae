// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/EuclidesLargo.h"

#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

EuclidesLargo::EuclidesLargo(const EnteroLargo &a, const EnteroLargo &b) : m_mcd(a)
{
    EnteroLargo divisor = b, ultimo = 1;
    while (divisor > 0) {
        const EnteroLargo q = m_mcd / divisor;
        const EnteroLargo r = m_mcd - q * divisor;
        const EnteroLargo siguiente = m_coeficiente - q * ultimo;
        m_divisiones << DivisionLarga{m_mcd, divisor, q, r, siguiente};
        m_mcd = divisor;
        divisor = r;
        m_coeficiente = ultimo;
        ultimo = siguiente;
    }
}

TablaDePaso EuclidesLargo::tabla() const
{
    constexpr qsizetype MasFilas = 24, AlPrincipio = 16, AlFinal = 6;
    TablaDePaso tabla{{Traduce(u"Dividendo"_s), Traduce(u"Divisor"_s), Traduce(u"Cociente"_s),
                       Traduce(u"Resto"_s), Traduce(u"Coef."_s)},
                      {}};
    const bool cortada = m_divisiones.size() > MasFilas;
    for (qsizetype i = 0; i < m_divisiones.size(); ++i) {
        const DivisionLarga &d = m_divisiones[i];
        if (cortada && i == AlPrincipio) {
            tabla.filas << QStringList(tabla.cabecera.size(), u"…"_s);
            i = m_divisiones.size() - AlFinal - 1;
            continue;
        }
        tabla.filas << QStringList{d.dividendo.texto(), d.divisor.texto(), d.cociente.texto(),
                                   d.resto.texto(), d.coeficiente.texto()};
    }
    return tabla;
}
