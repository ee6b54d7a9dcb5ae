#include "lessons/units/CuestionUnidades.h"

#include "bignum/Azar.h"
#include "lessons/units/FuncionEuler.h"
#include "lessons/units/NotacionZn.h"
#include "shell/ModGlobal.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A unit that is neither 1 nor -1, whose inverse and order would be no question.
std::int32_t unidadAlAzar(const GrupoUnidades &grupo)
{
    return grupo.unidades()[AleatorioEntre(1, grupo.fi() - 2)].valor;
}

/// A modulus of the range with at least four units and of the wanted kind.
template <typename Condicion>
std::int32_t moduloAlAzar(std::int32_t desde, std::int32_t hasta, Condicion sirve)
{
    for (;;) {
        const GrupoUnidades grupo(AleatorioEntre(desde, hasta));
        if (grupo.fi() >= 4 && sirve(grupo))
            return grupo.modulo();
    }
}

/// Euler's function as it comes out when every prime is taken once.
std::int32_t fiSinExponentes(const FuncionEuler &euler)
{
    std::int32_t producto = 1;
    for (const auto &factor : euler.factores())
        producto *= factor.primo.toInt() - 1;
    return producto;
}

} // namespace

CuestionUnidades::CuestionUnidades(Tipo tipo, std::int32_t n, std::int32_t a, std::int32_t k)
    : m_tipo(tipo), m_grupo(n), m_a(a), m_k(k)
{
}

CuestionUnidades CuestionUnidades::alAzar(const QList<Tipo> &tipos)
{
    const Tipo tipo = tipos[AleatorioEntre(0, static_cast<std::int32_t>(tipos.size()) - 1)];
    const auto cualquiera = [](const GrupoUnidades &) { return true; };
    const auto ciclico = [](const GrupoUnidades &g) { return g.esCiclico(); };
    const auto compuesto = [](const GrupoUnidades &g) { return g.fi() < g.modulo() - 1; };
    switch (tipo) {
    case Tipo::RaizPrimitiva:
        return CuestionUnidades(tipo, moduloAlAzar(7, 50, ciclico));
    case Tipo::Fi:
        return CuestionUnidades(tipo, moduloAlAzar(30, 2'000, compuesto));
    default:
        break;
    }
    const std::int32_t n =
        tipo == Tipo::Inverso ? moduloAlAzar(20, 200, cualquiera) : moduloAlAzar(7, 60, cualquiera);
    return CuestionUnidades(tipo, n, unidadAlAzar(GrupoUnidades(n)), AleatorioEntre(100, 9'999));
}

QString CuestionUnidades::enunciado() const
{
    const std::int32_t n = m_grupo.modulo();
    switch (m_tipo) {
    case Tipo::Inverso:
        return Traduce(u"¿Cuál es el inverso de %1 módulo %2?"_s).arg(m_a).arg(n);
    case Tipo::Orden:
        return Traduce(u"¿Cuál es el orden de %1 en el grupo de las unidades de Z%2?"_s)
            .arg(m_a)
            .arg(subindice(n));
    case Tipo::RaizPrimitiva:
        return Traduce(u"Encuentra una raíz primitiva módulo %1: una unidad cuyas potencias son "
                       u"todas las unidades."_s)
            .arg(n);
    case Tipo::Fi:
        return Traduce(u"¿Cuánto vale φ(%1)?"_s).arg(n);
    default:
        return Traduce(u"¿Qué resto da %1^%2 al dividirlo entre %3?"_s).arg(m_a).arg(m_k).arg(n);
    }
}

std::int32_t CuestionUnidades::solucion() const
{
    switch (m_tipo) {
    case Tipo::Inverso:
        return m_grupo.unidad(m_a)->inverso;
    case Tipo::Orden:
        return m_grupo.unidad(m_a)->orden;
    case Tipo::RaizPrimitiva:
        return std::find_if(m_grupo.unidades().begin(), m_grupo.unidades().end(),
                            [this](const Unidad &u) { return m_grupo.esRaizPrimitiva(u); })
            ->valor;
    case Tipo::Fi:
        return m_grupo.fi();
    default:
        return potenciaMod(m_a, m_k, m_grupo.modulo());
    }
}

CuestionUnidades::Juicio CuestionUnidades::juzga(std::int32_t respuesta) const
{
    switch (m_tipo) {
    case Tipo::Inverso:
        return juzgaInverso(respuesta);
    case Tipo::Orden:
        return juzgaOrden(respuesta);
    case Tipo::RaizPrimitiva:
        return juzgaRaiz(respuesta);
    case Tipo::Fi:
        return juzgaFi(respuesta);
    default:
        return juzgaPotencia(respuesta);
    }
}

CuestionUnidades::Juicio CuestionUnidades::juzgaInverso(std::int32_t r) const
{
    const std::int64_t producto = std::int64_t(m_a) * r;
    const std::int32_t resto = m_grupo.representante(producto);
    if (resto == m_grupo.representante(1)) {
        const std::int32_t dentro = m_grupo.representante(r);
        return {
            true,
            dentro == r
                ? QString()
                : Traduce(u"Entre 0 y %1 se escribe %2."_s).arg(m_grupo.modulo() - 1).arg(dentro)};
    }
    return {false, Traduce(u"%1 · %2 = %3, que es %4 módulo %5, y tendría que ser 1."_s)
                       .arg(m_a)
                       .arg(r)
                       .arg(producto)
                       .arg(resto)
                       .arg(m_grupo.modulo())};
}

CuestionUnidades::Juicio CuestionUnidades::juzgaOrden(std::int32_t r) const
{
    if (r == solucion())
        return {true, {}};
    if (r <= 0)
        return {false, Traduce(u"El orden es un exponente positivo."_s)};
    const std::int32_t potencia = potenciaMod(m_a, r, m_grupo.modulo());
    if (potencia == m_grupo.representante(1))
        return {false, Traduce(u"%1^%2 sí da 1, pero hay un exponente menor que también lo da."_s)
                           .arg(m_a)
                           .arg(r)};
    return {false, Traduce(u"%1^%2 da %3 módulo %4, y tendría que dar 1."_s)
                       .arg(m_a)
                       .arg(r)
                       .arg(potencia)
                       .arg(m_grupo.modulo())};
}

CuestionUnidades::Juicio CuestionUnidades::juzgaRaiz(std::int32_t r) const
{
    const Unidad *unidad = m_grupo.unidad(r);
    if (!unidad)
        return {false, Traduce(u"%1 no es una unidad: mcd(%1, %2) = %3."_s)
                           .arg(r)
                           .arg(m_grupo.modulo())
                           .arg(std::gcd(m_grupo.representante(r), m_grupo.modulo()))};
    if (m_grupo.esRaizPrimitiva(*unidad))
        return {true, Traduce(u"Hay %1 en total."_s).arg(m_grupo.numeroDeRaicesPrimitivas())};
    return {false, Traduce(u"El orden de %1 es %2: sus potencias son solo %2 de las %3 unidades."_s)
                       .arg(r)
                       .arg(unidad->orden)
                       .arg(m_grupo.fi())};
}

CuestionUnidades::Juicio CuestionUnidades::juzgaFi(std::int32_t r) const
{
    if (r == m_grupo.fi())
        return {true, {}};
    const FuncionEuler euler(QString::number(m_grupo.modulo()));
    if (r == m_grupo.modulo() - 1)
        return {false, Traduce(u"φ(n) = n − 1 solo si n es primo, y %1 = %2."_s)
                           .arg(m_grupo.modulo())
                           .arg(euler.factorizacion())};
    if (r == fiSinExponentes(euler))
        return {false, Traduce(u"Has tomado cada primo una sola vez, pero %1 = %2 y "
                               u"φ(p^k) = p^(k−1)·(p − 1)."_s)
                           .arg(m_grupo.modulo())
                           .arg(euler.factorizacion())};
    return {false, Traduce(r < m_grupo.fi() ? u"Es mayor que %1. Ten en cuenta que %2 = %3."_s
                                            : u"Es menor que %1. Ten en cuenta que %2 = %3."_s)
                       .arg(r)
                       .arg(m_grupo.modulo())
                       .arg(euler.factorizacion())};
}

CuestionUnidades::Juicio CuestionUnidades::juzgaPotencia(std::int32_t r) const
{
    const std::int32_t n = m_grupo.modulo();
    if (r == solucion())
        return {true, {}};
    if (m_grupo.representante(r) == solucion())
        return {false,
                Traduce(u"%1 es congruente con la solución, pero un resto está entre 0 y %2."_s)
                    .arg(r)
                    .arg(n - 1)};
    return {false, Traduce(u"Como φ(%1) = %2 y %3 es una unidad, %3^%2 da 1: basta calcular "
                           u"%3^%4, porque %4 es el resto de %5 entre %2."_s)
                       .arg(n)
                       .arg(m_grupo.fi())
                       .arg(m_a)
                       .arg(m_k % m_grupo.fi())
                       .arg(m_k)};
}
