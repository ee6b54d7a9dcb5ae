// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/Moneda.h"

#include "bignum/gateway/ErrorEjecucion.h"

#include <cmath>
#include <limits>

namespace {

__extension__ using Entero128 = __int128;

[[noreturn]] void desborda()
{
    throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
}

Moneda comprobada(Entero128 diezmilesimas)
{
    if (diezmilesimas > std::numeric_limits<std::int64_t>::max() ||
        diezmilesimas < std::numeric_limits<std::int64_t>::min())
        desborda();
    return Moneda::deDiezmilesimas(static_cast<std::int64_t>(diezmilesimas));
}

/// n / d rounded to the nearest integer, halves to even; d > 0.
Entero128 divideAlPar(Entero128 n, Entero128 d)
{
    Entero128 q = n / d;
    Entero128 r = n % d;
    if (r < 0) {
        r += d;
        --q;
    }
    const bool sube = 2 * r > d || (2 * r == d && q % 2 != 0);
    return sube ? q + 1 : q;
}

template <typename Entero>
Entero redondeada(std::int64_t diezmilesimas)
{
    const Entero128 entero = divideAlPar(diezmilesimas, Moneda::Escala);
    if (entero > std::numeric_limits<Entero>::max() || entero < std::numeric_limits<Entero>::min())
        desborda();
    return static_cast<Entero>(entero);
}

} // namespace

Moneda Moneda::deEntero(std::int64_t valor)
{
    if (valor > MaximoEntero || valor < -MaximoEntero)
        desborda();
    return Moneda(valor * Escala);
}

Moneda Moneda::deReal(double valor)
{
    if (!(std::abs(valor) <= static_cast<double>(MaximoEntero + 1)))
        desborda();
    // Scaled as a whole, a whole number beyond 9·10^11 would be rounded. nearbyint rounds halves to
    // even in the default rounding mode, and the scale is even, so the sum is rounded so too.
    const double entero = std::trunc(valor);
    const double decimales = std::nearbyint((valor - entero) * Escala);
    const Moneda conEntero = deEntero(static_cast<std::int64_t>(entero));
    return conEntero + Moneda(static_cast<std::int64_t>(decimales));
}

std::optional<Moneda> Moneda::deTexto(QStringView texto)
{
    texto = texto.trimmed();
    const bool negativo = texto.startsWith(u'-');
    if (negativo || texto.startsWith(u'+'))
        texto = texto.sliced(1);

    // Eight decimals are read exactly and what follows only breaks ties, so that rounding half to
    // even sees the whole text whatever its length.
    constexpr int decimalesLeidos = 8;
    constexpr Entero128 tope = Entero128(1) << 100;
    Entero128 valor = 0;
    int decimales = -1;
    bool hayCifras = false;
    bool restoNoNulo = false;
    for (const QChar c : texto) {
        if ((c == u',' || c == u'.') && decimales < 0) {
            decimales = 0;
            continue;
        }
        if (c < u'0' || c > u'9')
            return {};
        hayCifras = true;
        if (decimales >= decimalesLeidos) {
            restoNoNulo = restoNoNulo || c != u'0';
            continue;
        }
        if (valor < tope)
            valor = valor * 10 + (c.unicode() - u'0');
        if (decimales >= 0)
            ++decimales;
    }
    if (!hayCifras)
        return {};
    for (int i = std::max(decimales, 0); i < decimalesLeidos; ++i)
        valor = valor < tope ? valor * 10 : valor;
    valor = 2 * valor + (restoNoNulo ? 1 : 0);
    const Entero128 redondo = divideAlPar(negativo ? -valor : valor, Entero128{2} * Escala);
    return comprobada(redondo);
}

std::int32_t Moneda::aEntero32() const
{
    return redondeada<std::int32_t>(m_valor);
}

std::int16_t Moneda::aEntero16() const
{
    return redondeada<std::int16_t>(m_valor);
}

QString Moneda::texto() const
{
    const Entero128 magnitud = m_valor < 0 ? -Entero128(m_valor) : Entero128(m_valor);
    QString s = QString::number(static_cast<qulonglong>(magnitud / Escala));
    if (const auto fraccion = static_cast<int>(magnitud % Escala); fraccion != 0) {
        s += u',' + QString::number(fraccion).rightJustified(4, u'0');
        while (s.endsWith(u'0'))
            s.chop(1);
    }
    return m_valor < 0 ? u'-' + s : s;
}

Moneda Moneda::operator-() const
{
    return comprobada(-Entero128(m_valor));
}

Moneda operator+(Moneda a, Moneda b)
{
    // Not by 128 bits, which WebAssembly has to put together: trial division adds at each step.
    std::int64_t suma = 0;
    if (__builtin_add_overflow(a.m_valor, b.m_valor, &suma))
        desborda();
    return Moneda(suma);
}

Moneda operator-(Moneda a, Moneda b)
{
    return comprobada(Entero128(a.m_valor) - b.m_valor);
}

Moneda operator*(Moneda a, Moneda b)
{
    return comprobada(divideAlPar(Entero128(a.m_valor) * b.m_valor, Moneda::Escala));
}

Moneda cociente(Moneda a, Moneda b)
{
    if (b == Moneda())
        throw ErrorEjecucion(ErrorEjecucion::DivisionPorCero);
    return Moneda::deReal(a.real() / b.real());
}

double cocienteEntero(Moneda a, Moneda b)
{
    if (b == Moneda())
        throw ErrorEjecucion(ErrorEjecucion::DivisionPorCero);
    return std::floor(a.real() / b.real());
}

Moneda ModCy(Moneda a, Moneda b)
{
    const Moneda r = Moneda::deReal(a.real() - cocienteEntero(a, b) * b.real());
    return r < Moneda() ? r + b : r;
}
