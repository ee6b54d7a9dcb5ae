// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/CuestionesUnidades.h"

#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/units/FuncionEuler.h"
#include "lessons/units/GrupoUnidades.h"
#include "lessons/units/ResumenUnidades.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/PotenciaEscrita.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A unit that is neither 1 nor -1, whose inverse and order would be no question.
std::int32_t unidadAlAzar(const GrupoUnidades &grupo)
{
    return grupo.unidades()[AleatorioEntre(1, grupo.fi() - 2)].valor;
}

/// A group of a modulus of the range, with at least four units and of the wanted kind.
template <typename Condicion>
GrupoUnidades grupoAlAzar(std::int32_t desde, std::int32_t hasta, Condicion sirve)
{
    for (;;) {
        const GrupoUnidades grupo(AleatorioEntre(desde, hasta));
        if (grupo.fi() >= 4 && sirve(grupo))
            return grupo;
    }
}

GrupoUnidades grupoAlAzar(std::int32_t desde, std::int32_t hasta)
{
    return grupoAlAzar(desde, hasta, [](const GrupoUnidades &) { return true; });
}

Juicio acierto(const QString &motivo = {})
{
    return {true, (Traduce(u"¡Correcto!"_s) + u' ' + motivo).trimmed()};
}

std::int32_t representante(const QString &valor, std::int32_t n)
{
    return Modulo(valor, QString::number(n)).toInt();
}

/// A number as a verdict names it: as it was given or, where it is long, as what it is modulo n.
QString nombrado(const QString &valor, std::int32_t n)
{
    constexpr qsizetype cifrasComoMucho = 12;
    return valor.size() <= cifrasComoMucho ? valor : QString::number(representante(valor, n));
}

Juicio juzgaInverso(const QString &valor, const GrupoUnidades &grupo, std::int32_t a)
{
    const std::int32_t n = grupo.modulo();
    const std::int32_t dentro = representante(valor, n);
    if (dentro == grupo.unidad(a)->inverso)
        return acierto(QString::number(dentro) == valor
                           ? QString()
                           : Traduce(u"Entre 0 y %1 se escribe %2."_s).arg(n - 1).arg(dentro));
    const QString r = nombrado(valor, n);
    const std::int64_t producto = a * r.toLongLong();
    return {false, Traduce(u"%1 · %2 = %3, que es %4 módulo %5, y tendría que ser 1."_s)
                       .arg(a)
                       .arg(r)
                       .arg(producto)
                       .arg(grupo.representante(producto))
                       .arg(n)};
}

Juicio juzgaOrden(const QString &valor, const GrupoUnidades &grupo, std::int32_t a)
{
    const QString n = QString::number(grupo.modulo());
    if (valor == QString::number(grupo.unidad(a)->orden))
        return acierto();
    if (!EsMayor(u"0"_s, valor))
        return {false, Traduce(u"El orden es un exponente positivo."_s)};
    if (EsMayor(QString::number(grupo.fi()), valor))
        return {false, Traduce(u"Ningún orden pasa de φ(%1) = %2."_s).arg(n).arg(grupo.fi())};
    const QString potencia = PotenciaMod(QString::number(a), valor, n);
    const QString elevado = potenciaEscrita(a, valor.toLongLong());
    if (potencia == u"1"_s)
        return {
            false,
            Traduce(u"%1 sí da 1, pero hay un exponente menor que también lo da."_s).arg(elevado)};
    return {false,
            Traduce(u"%1 da %2 módulo %3, y tendría que dar 1."_s).arg(elevado, potencia, n)};
}

Juicio juzgaRaiz(const QString &valor, const GrupoUnidades &grupo)
{
    const std::int32_t n = grupo.modulo();
    const std::int32_t dentro = representante(valor, n);
    const QString r = nombrado(valor, n);
    const Unidad *unidad = grupo.unidad(dentro);
    if (!unidad)
        return {false, Traduce(u"%1 no es una unidad: mcd(%1, %2) = %3."_s)
                           .arg(r)
                           .arg(n)
                           .arg(std::gcd(dentro, n))};
    if (grupo.esRaizPrimitiva(*unidad))
        return acierto(Traduce(u"Hay %1 en total."_s).arg(grupo.numeroDeRaicesPrimitivas()));
    return {false, Traduce(u"El orden de %1 es %2: sus potencias son solo %2 de las %3 unidades."_s)
                       .arg(r)
                       .arg(unidad->orden)
                       .arg(grupo.fi())};
}

/// Euler's function as it comes out when every prime is taken once.
std::int32_t fiSinExponentes(const FuncionEuler &euler)
{
    std::int32_t producto = 1;
    for (const auto &factor : euler.factores())
        producto *= factor.primo.toInt() - 1;
    return producto;
}

Juicio juzgaFi(const QString &valor, std::int32_t n)
{
    const FuncionEuler euler(QString::number(n));
    if (valor == euler.valor())
        return acierto();
    const QString igualdad = u"%1 = %2"_s.arg(QString::number(n), euler.factorizacion());
    if (valor == QString::number(n - 1))
        return {false, Traduce(u"φ(n) = n − 1 solo si n es primo, y %1."_s).arg(igualdad)};
    if (valor == QString::number(fiSinExponentes(euler)))
        return {false, Traduce(u"Ha tomado cada primo una sola vez, pero %1 y "
                               u"φ(pᵏ) = pᵏ⁻¹·(p − 1)."_s)
                           .arg(igualdad)};
    if (!EsMayor(u"0"_s, valor) || !EsMayor(valor, QString::number(n)))
        return {false, Traduce(u"φ(%1) cuenta las unidades de Z%2: está entre 1 y %3."_s)
                           .arg(QString::number(n), subindice(n), QString::number(n - 1))};
    // Neither "larger" nor "smaller": a few of those would find it without a thought.
    return {false, Traduce(u"No es %1. Tenga en cuenta que %2."_s).arg(valor, igualdad)};
}

Juicio juzgaPotencia(const QString &valor, const GrupoUnidades &grupo, std::int32_t a,
                     std::int32_t k)
{
    const std::int32_t n = grupo.modulo();
    const std::int32_t solucion = potenciaMod(a, k, n);
    if (valor == QString::number(solucion))
        return acierto();
    if (representante(valor, n) == solucion)
        return {false, Traduce(u"Es congruente con la solución, pero un resto está entre 0 y %1."_s)
                           .arg(n - 1)};
    return {false, Traduce(u"Como φ(%1) = %2 y %3 es una unidad, %4 da 1: basta calcular "
                           u"%5, porque %6 es el resto de %7 entre %2."_s)
                       .arg(n)
                       .arg(grupo.fi())
                       .arg(a)
                       .arg(potenciaEscrita(a, grupo.fi()), potenciaEscrita(a, k % grupo.fi()))
                       .arg(k % grupo.fi())
                       .arg(k)};
}

QString unEntero()
{
    return Traduce(u"Un número entero o una expresión"_s);
}

} // namespace

Cuestion cuestionInverso(std::int32_t n, std::int32_t a)
{
    return {Traduce(u"¿Cuál es el inverso de %1 módulo %2?"_s).arg(a).arg(n), unEntero(),
            [grupo = GrupoUnidades(n), a](const QString &valor) {
                return juzgaInverso(valor, grupo, a);
            }};
}

Cuestion cuestionOrden(std::int32_t n, std::int32_t a)
{
    return {Traduce(u"¿Cuál es el orden de %1 en el grupo de las unidades de Z%2?"_s)
                .arg(a)
                .arg(subindice(n)),
            unEntero(), [grupo = GrupoUnidades(n), a](const QString &valor) {
                return juzgaOrden(valor, grupo, a);
            }};
}

Cuestion cuestionRaizPrimitiva(std::int32_t n)
{
    return {Traduce(u"Encuentre una raíz primitiva módulo %1: una unidad cuyas potencias son todas "
                    u"las unidades."_s)
                .arg(n),
            unEntero(),
            [grupo = GrupoUnidades(n)](const QString &v) { return juzgaRaiz(v, grupo); }};
}

Cuestion cuestionFi(std::int32_t n)
{
    return {Traduce(u"¿Cuánto vale φ(%1)?"_s).arg(n),
            unEntero(),
            [n](const QString &valor) { return juzgaFi(valor, n); },
            {FormaDeRespuesta::Entero, {}, {u"fi"_s}}};
}

Cuestion cuestionPotencia(std::int32_t n, std::int32_t a, std::int32_t k)
{
    return {Traduce(u"¿Qué resto da %1 al dividirlo entre %2?"_s).arg(potenciaEscrita(a, k)).arg(n),
            unEntero(),
            [grupo = GrupoUnidades(n), a, k](const QString &valor) {
                return juzgaPotencia(valor, grupo, a, k);
            },
            {FormaDeRespuesta::Entero, {}, {u"^ mod"_s}}};
}

Cuestion sorteaDelGrupo()
{
    switch (AleatorioEntre(0, 2)) {
    case 0: {
        const GrupoUnidades grupo = grupoAlAzar(20, 200);
        return cuestionInverso(grupo.modulo(), unidadAlAzar(grupo));
    }
    case 1: {
        const GrupoUnidades grupo = grupoAlAzar(7, 60);
        return cuestionOrden(grupo.modulo(), unidadAlAzar(grupo));
    }
    default: {
        const auto ciclico = [](const GrupoUnidades &grupo) { return grupo.esCiclico(); };
        return cuestionRaizPrimitiva(grupoAlAzar(7, 50, ciclico).modulo());
    }
    }
}

Cuestion sorteaDeEuler()
{
    if (AleatorioEntre(0, 1) == 0) {
        const auto compuesto = [](const GrupoUnidades &g) { return g.fi() < g.modulo() - 1; };
        return cuestionFi(grupoAlAzar(30, 2'000, compuesto).modulo());
    }
    const GrupoUnidades grupo = grupoAlAzar(7, 60);
    return cuestionPotencia(grupo.modulo(), unidadAlAzar(grupo), AleatorioEntre(100, 9'999));
}
