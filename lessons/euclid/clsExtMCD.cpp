// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/clsExtMCD.h"

#include <utility>

namespace {

const Moneda Cero;

Moneda signo(Moneda valor)
{
    return Moneda::deEntero(valor < Cero ? -1 : 1);
}

Moneda absoluto(Moneda valor)
{
    return valor < Cero ? -valor : valor;
}

/// A remainder and how it is made of the two numbers.
struct Combinacion
{
    Moneda resto;
    Moneda coeficiente1;
    Moneda coeficiente2;
};

Combinacion menosMultiplo(const Combinacion &a, Moneda q, const Combinacion &b)
{
    return {a.resto - q * b.resto, a.coeficiente1 - q * b.coeficiente1,
            a.coeficiente2 - q * b.coeficiente2};
}

} // namespace

void clsExtMCD::ponNúmero1(Moneda valor)
{
    m_numero1 = valor;
    m_mcd = Cero;
}

void clsExtMCD::ponNúmero2(Moneda valor)
{
    m_numero2 = valor;
    m_mcd = Cero;
}

std::int16_t clsExtMCD::NumDivisiones()
{
    calculaSiFalta();
    return m_numDivisiones;
}

Moneda clsExtMCD::MCD()
{
    calculaSiFalta();
    return m_mcd;
}

Moneda clsExtMCD::Coeficiente1()
{
    calculaSiFalta();
    return m_coeficiente1;
}

Moneda clsExtMCD::Coeficiente2()
{
    calculaSiFalta();
    return m_coeficiente2;
}

void clsExtMCD::calculaSiFalta()
{
    if (m_mcd == Cero)
        calcula();
}

void clsExtMCD::calcula()
{
    const Moneda a = absoluto(m_numero1);
    const Moneda b = absoluto(m_numero2);
    m_coeficiente1 = m_coeficiente2 = Cero;
    if (a == Cero && b == Cero) {
        m_mcd = Moneda::deEntero(1);
    } else if (a == Cero) {
        m_mcd = b;
        m_coeficiente2 = signo(m_numero2);
    } else if (b == Cero) {
        m_mcd = a;
        m_coeficiente1 = signo(m_numero1);
    } else {
        divide(a, b);
    }
}

void clsExtMCD::divide(Moneda a, Moneda b)
{
    const Moneda uno = Moneda::deEntero(1);
    Combinacion previa{b, Cero, uno};
    Combinacion actual{a, uno, Cero};
    int divisiones = 0;
    while (actual.resto > Cero) {
        ++divisiones;
        const Moneda q = Moneda::deReal(cocienteEntero(previa.resto, actual.resto));
        previa = std::exchange(actual, menosMultiplo(previa, q, actual));
    }
    m_coeficiente1 = previa.coeficiente1 * signo(m_numero1);
    m_coeficiente2 = previa.coeficiente2 * signo(m_numero2);
    m_mcd = previa.resto;
    m_numDivisiones = static_cast<std::int16_t>(divisiones);
}
