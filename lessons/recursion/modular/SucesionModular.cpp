// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/SucesionModular.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/ModGlobal.h"

#include <QHash>
#include <limits>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

std::int32_t reduce(Moneda valor, Moneda modulo)
{
    return static_cast<std::int32_t>(ModCy(valor, modulo).entero());
}

/// alfa·a + beta·b in 32 bits; nothing when a product or the sum does not fit.
std::optional<std::int32_t> combina(std::int32_t alfa, std::int32_t a, std::int32_t beta,
                                    std::int32_t b)
{
    std::int32_t primero = 0;
    std::int32_t segundo = 0;
    std::int32_t suma = 0;
    if (__builtin_mul_overflow(alfa, a, &primero) || __builtin_mul_overflow(beta, b, &segundo) ||
        __builtin_add_overflow(primero, segundo, &suma))
        return {};
    return suma;
}

} // namespace

Lectura<Moneda> leeCoeficiente(const QString &expresion)
{
    const Moneda mayor = Moneda::deEntero(Moneda::MaximoEntero);
    return leeEntero(expresion, -mayor, mayor);
}

Lectura<std::int32_t> leeModulo(const QString &expresion)
{
    const auto leido = leeEntero(expresion, std::int64_t{1}, Moneda::MaximoEntero);
    if (!leido)
        return leido.razon();
    constexpr std::int32_t mayor = std::numeric_limits<std::int32_t>::max();
    if (*leido > mayor)
        return NoLeido{NoLeido::Mayor, QString::number(mayor)};
    return static_cast<std::int32_t>(*leido);
}

SucesionModular::SucesionModular(const DefinicionRecurrente &definicion, std::int32_t m)
    : m_modulo(m)
{
    if (m == 0)
        return;
    const Moneda modulo = Moneda::deEntero(m);
    const std::int32_t alfa = reduce(definicion.alfa, modulo);
    const std::int32_t beta = reduce(definicion.beta, modulo);
    m_valores[0] = reduce(definicion.f1, modulo);
    m_valores[1] = reduce(definicion.f2, modulo);
    for (std::size_t k = 2; k < m_valores.size(); ++k) {
        const auto valor = combina(alfa, m_valores[k - 1], beta, m_valores[k - 2]);
        if (!valor) {
            throw ErrorEjecucion(
                ErrorEjecucion::Desbordamiento,
                Traduce(u"f(%1) se sale de los 32 bits con este módulo."_s).arg(k + 1));
        }
        m_valores[k] = *valor % m;
    }
}

std::optional<PeriodoModular> SucesionModular::periodo() const
{
    QHash<std::pair<std::int32_t, std::int32_t>, int> vistas;
    for (int i = 1; i < NumValores; ++i) {
        const std::pair pareja(valor(i), valor(i + 1));
        const auto anterior = vistas.constFind(pareja);
        if (anterior != vistas.cend())
            return PeriodoModular{*anterior, i - *anterior};
        vistas.insert(pareja, i);
    }
    return {};
}
