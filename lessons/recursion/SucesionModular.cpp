#include "lessons/recursion/SucesionModular.h"

#include "bignum/ErrorEjecucion.h"

#include <QHash>
#include <utility>

namespace {

std::int32_t reduce(Moneda valor, Moneda modulo)
{
    return static_cast<std::int32_t>(ModCy(valor, modulo).entero());
}

std::int32_t producto(std::int32_t a, std::int32_t b)
{
    std::int32_t resultado = 0;
    if (__builtin_mul_overflow(a, b, &resultado))
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
    return resultado;
}

std::int32_t suma(std::int32_t a, std::int32_t b)
{
    std::int32_t resultado = 0;
    if (__builtin_add_overflow(a, b, &resultado))
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
    return resultado;
}

} // namespace

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
        m_valores[k] = suma(producto(alfa, m_valores[k - 1]), producto(beta, m_valores[k - 2])) % m;
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
