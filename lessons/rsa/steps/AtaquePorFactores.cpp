// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/FactoresHallados.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/rsa/steps/AtaquesPosibles.h"
#include "lessons/rsa/steps/RaicesEnteras.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/run/Aparte.h"

#include <algorithm>
#include <cstdint>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Divisors are tried up to the first bound, and fewer where a division costs more; numbers of up
/// to so many digits are then left to the service, which splits them in some 15 ms and does not
/// yield where it does not run apart.
constexpr std::int64_t MayorDivisor = 20'000'000;
constexpr std::int64_t MasOperaciones = 400'000'000;
constexpr qsizetype CifrasDelServicio = 40;
constexpr qsizetype CifrasDeLimbo = 9;
constexpr std::uint64_t BaseDeLimbo = 1'000'000'000;

/// A number in base 10^9, from the highest digit on: its remainder by a small divisor costs a
/// division a digit.
class EnLimbos
{
public:
    explicit EnLimbos(const QString &n)
    {
        for (qsizetype fin = n.size(); fin > 0; fin -= CifrasDeLimbo) {
            const qsizetype desde = std::max<qsizetype>(0, fin - CifrasDeLimbo);
            m_limbos.prepend(n.sliced(desde, fin - desde).toUInt());
        }
    }
    qsizetype cuantos() const { return m_limbos.size(); }
    bool divisiblePor(std::int64_t d) const
    {
        std::uint64_t resto = 0;
        for (const quint32 limbo : m_limbos)
            resto = (resto * BaseDeLimbo + limbo) % static_cast<std::uint64_t>(d);
        return resto == 0;
    }

private:
    QList<quint32> m_limbos;
};

/// How far the divisors got.
struct Tanteo
{
    std::int64_t divisor = 0; ///< the least one, or 0
    std::int64_t hasta = 0;   ///< all up to here were tried
    bool parado = false;
};

/// The divisors from 2 to `tope`, even ones left out.
Tarea<Tanteo> tantea(QString n, std::int64_t tope, Billete billete)
{
    constexpr std::int64_t tramo = 1024;
    const EnLimbos limbos(n);
    Tanteo tanteo;
    for (std::int64_t d = 2; d <= tope; d += d == 2 ? 1 : 2) {
        if (limbos.divisiblePor(d)) {
            tanteo.divisor = d;
            break;
        }
        tanteo.hasta = d;
        if (d % tramo != 1)
            continue;
        co_await billete.ceder();
        tanteo.parado = billete.detenida();
        if (tanteo.parado)
            break;
    }
    co_return tanteo;
}

std::int64_t topePara(const Victima &v, const EnteroLargo &raiz)
{
    const std::int64_t limbos = (v.q.size() + CifrasDeLimbo - 1) / CifrasDeLimbo;
    const std::int64_t tope = std::min(MayorDivisor, 2 * MasOperaciones / limbos);
    return raiz < EnteroLargo(tope) ? raiz.texto().toLongLong() : tope;
}

Formula descomposicion(const Victima &v, const QString &p1, const QString &p2)
{
    return {u"%1 = %2*%3"_s.arg(v.q, p1, p2)};
}

Paso divididos(std::int64_t hasta, const Victima &v)
{
    return {Traduce(u"Se divide q entre 2 y entre los impares hasta %1, y ninguna división es "
                    "exacta."_s)
                .arg(hasta),
            {Formula(u"%1^2 < %2"_s.arg(hasta).arg(v.q))}};
}

/// The primes of a short q by the service; empty where it finds none.
Tarea<QStringList> delServicio(QString q, Billete billete)
{
    QStringList primos;
    const RecibeFactor recibe = [&primos](const FactorHallado &factor) {
        if (factor.primo)
            primos.append(QStringList(static_cast<qsizetype>(factor.exponente), factor.base));
        return true;
    };
    co_await Aparte::buscaFactores(q, recibe, billete);
    std::sort(primos.begin(), primos.end(),
              [](const QString &a, const QString &b) { return EnteroLargo(a) < EnteroLargo(b); });
    co_return primos;
}

ResultadoDeAtaque dividido(const Victima &v, const QString &p, const QString &otro)
{
    const Paso division{Traduce(u"Se divide q entre 2 y entre los impares: %1 lo divide."_s).arg(p),
                        {descomposicion(v, p, otro)},
                        Traduce(u"El menor divisor mayor que 1 es primo."_s)};
    return conFactores(v, p, otro, {division});
}

ResultadoDeAtaque descompuesto(const Victima &v, const Paso &divisiones, const QStringList &primos)
{
    const Paso avanzado{
        Traduce(u"Los algoritmos avanzados de factorización sí lo consiguen: q tiene "
                "solo %1 cifras."_s)
            .arg(v.q.size()),
        {descomposicion(v, primos.first(), primos.last())}};
    return conFactores(v, primos.first(), primos.last(), {divisiones, avanzado});
}

ResultadoDeAtaque abandonado(const Victima &v, const Paso &divisiones)
{
    // 10^k ≤ √q, with k as large as the number of digits tells.
    const qsizetype k = (v.q.size() - 1) / 2;
    return sinExito(
        ResultadoDeAtaque::Abandonado, {divisiones},
        Traduce(
            u"No se ha podido: q tiene %1 bits y el menor de sus primos puede tener %2 cifras. "
            "Llegar a la raíz de q pediría unas 10%3 divisiones; el banco hace unos segundos de "
            "trabajo. Que aquí no se pueda no demuestra que la clave sea segura."_s)
            .arg(NumeroDeBits(v.q))
            .arg((v.q.size() + 1) / 2)
            .arg(enSuperindice(QString::number(k))),
        {Formula(u"(10^%1)^2 <= %2"_s.arg(k).arg(v.q))});
}

ResultadoDeAtaque noCompuesto(const Victima &v, std::int64_t hasta)
{
    return sinExito(
        ResultadoDeAtaque::NoHay, {},
        Traduce(u"No hay divisores: se han probado todos hasta la raíz de q. El número %1 "
                "no es un producto de dos primos."_s)
            .arg(v.q),
        {Formula(u"(%1+1)^2 > %2"_s.arg(hasta).arg(v.q))});
}

} // namespace

Tarea<ResultadoDeAtaque> porFactorizacion(Victima v, Billete billete)
{
    const EnteroLargo q(v.q), raiz = raizEntera(q, 2);
    const std::int64_t tope = topePara(v, raiz);
    const Tanteo tanteo = co_await tantea(v.q, tope, billete);
    if (tanteo.parado)
        co_return detenido();
    if (tanteo.divisor > 0) {
        const QString p = QString::number(tanteo.divisor), otro = (q / tanteo.divisor).texto();
        co_return dividido(v, p, otro);
    }
    if (raiz <= tope)
        co_return noCompuesto(v, tope);
    const Paso divisiones = divididos(tanteo.hasta, v);
    if (v.q.size() > CifrasDelServicio)
        co_return abandonado(v, divisiones);
    const QStringList primos = co_await delServicio(v.q, billete);
    if (billete.detenida())
        co_return detenido();
    if (primos.size() != 2)
        co_return abandonado(v, divisiones);
    co_return descompuesto(v, divisiones, primos);
}
