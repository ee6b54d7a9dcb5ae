// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/TablaEuclides.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const Moneda Cero;

struct Coeficientes
{
    std::int64_t primero;
    std::int64_t segundo;
};

DivisionEuclides divide(Moneda dividendo, Moneda divisor, AlgoritmoEuclides algoritmo)
{
    Moneda q = Moneda::deReal(cocienteEntero(dividendo, divisor));
    // Whole numbers: the product may lie below the range where the dividend is negative, the
    // remainder never does.
    Moneda r = Moneda::deEntero(dividendo.entero() - q.entero() * divisor.entero());
    // 2·r > d and D - (q + 1)·d, written so that they stay in range whatever the two numbers: one
    // may still be there from the other algorithm, with its larger bound.
    if (algoritmo == AlgoritmoEuclides::RestosReducidos && r > divisor - r) {
        q = q + Moneda::deEntero(1);
        r = r - divisor;
    }
    return {dividendo, divisor, q, r, 0, 0};
}

QString factor(const QString &numero, bool negativo)
{
    return negativo ? u'(' + numero + u')' : numero;
}

QString factor(Moneda valor)
{
    return factor(formatoEntero(valor), valor < Cero);
}

QString factor(std::int64_t valor)
{
    return factor(formatoEntero(qint64(valor)), valor < 0);
}

} // namespace

Moneda mayorNumero(AlgoritmoEuclides algoritmo)
{
    constexpr std::int64_t mayor = Moneda::MaximoEntero * Moneda::Escala;
    return Moneda::deDiezmilesimas(algoritmo == AlgoritmoEuclides::Estandar ? mayor : mayor / 5);
}

TablaEuclides::TablaEuclides(Moneda dividendo, Moneda divisor, AlgoritmoEuclides algoritmo)
    : m_dividendo(dividendo), m_divisor(divisor), m_algoritmo(algoritmo)
{
    Coeficientes previos{1, 0};
    Coeficientes ultimos{0, 1};
    while (divisor > Cero) {
        DivisionEuclides division = divide(dividendo, divisor, algoritmo);
        const std::int64_t q = division.cociente.entero();
        division.coef1 = previos.primero - q * ultimos.primero;
        division.coef2 = previos.segundo - q * ultimos.segundo;
        previos = ultimos;
        ultimos = {division.coef1, division.coef2};
        dividendo = divisor;
        divisor = division.resto < Cero ? -division.resto : division.resto;
        m_divisiones << division;
    }
    m_mcd = dividendo;
}

std::optional<qsizetype> TablaEuclides::filaDelMcd() const
{
    if (m_divisiones.size() < 2)
        return {};
    return m_divisiones.size() - 2;
}

QString TablaEuclides::resultado() const
{
    if (m_divisor < Cero || m_mcd <= Cero)
        return Traduce(u"El divisor tiene que ser mayor que 0."_s);
    if (m_algoritmo == AlgoritmoEuclides::RestosReducidos)
        return Traduce(u"El MCD es "_s) + m_mcd.texto();
    return bezout();
}

QString TablaEuclides::bezout() const
{
    // Without any division the dividend is the greatest common divisor, with a single one the
    // divisor.
    Coeficientes c = m_divisiones.isEmpty() ? Coeficientes{1, 0} : Coeficientes{0, 1};
    if (const auto fila = filaDelMcd())
        c = {m_divisiones[*fila].coef1, m_divisiones[*fila].coef2};
    return factor(c.primero) + u" · "_s + factor(m_dividendo) + u" + "_s + factor(c.segundo) +
           u" · "_s + factor(m_divisor) + u" = "_s + m_mcd.texto();
}
