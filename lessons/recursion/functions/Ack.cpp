// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/Ack.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/Moneda.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// What is done between two yields: awaiting each of them would cost more than a call does.
constexpr int LlamadasSeguidas = 64;

} // namespace

Tarea<std::int32_t> Ack::calcula(std::int32_t m, std::int32_t n)
{
    if (m < 0 || n < 0) {
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido,
                             Traduce(u"x e y no pueden ser negativos."_s));
    }
    m_pila.clear();
    Llamada llamada{m, n};
    while (!m_rendido && !m_billete.detenida()) {
        if (const auto valor = avanza(llamada))
            co_return *valor;
        co_await m_billete.ceder();
    }
    // There may be a million calls that wait.
    while (!m_pila.empty()) {
        abandona();
        co_await m_billete.ceder();
    }
    co_return 0;
}

/// Some calls in a row. The value of the whole when that comes of it, else the next call.
std::optional<std::int32_t> Ack::avanza(Llamada &llamada)
{
    // In variables of the machine: as a pair in memory, written by halves and read as a whole, the
    // call would cost as much again.
    auto [m, n] = llamada;
    for (int i = 0; i < LlamadasSeguidas && !m_rendido; ++i) {
        const std::int32_t valor = entra({m, n});
        if (valor != 0) {
            const auto otraM = devuelve(valor);
            if (!otraM)
                return valor;
            m = *otraM;
            n = valor;
        } else if (!m_rendido) {
            m_pila.push_back({{m, n}, n == 0});
            m = n == 0 ? m - 1 : m;
            n = n == 0 ? 1 : n - 1;
        }
    }
    llamada = {m, n};
    return {};
}

/// Makes room, tests the cut-off, and gives the value if it needs no other call; else 0.
std::int32_t Ack::entra(Llamada llamada)
{
    const auto [m, n] = llamada;
    m_memoria->hazSitio(m, n);
    if (m > m_corte || n > m_corte) {
        m_rendido = true;
        m_billete.detener();
        return 0;
    }
    m_actual = llamada;
    ++m_numLlamadas;
    std::int32_t valor = m_memoria->lee(m, n);
    if (valor == 0 && m == 0) {
        valor = n + 1;
        m_memoria->escribe(m, n, valor);
    }
    return valor;
}

/// Hands a value to the calls that wait for it. The first argument of the call with which one of
/// them goes on, of which the value is the second one; nothing when it is the value of the whole.
std::optional<std::int32_t> Ack::devuelve(std::int32_t valor)
{
    while (!m_pila.empty()) {
        Pendiente &ultima = m_pila.back();
        if (!ultima.esperaSuValor) {
            ultima.esperaSuValor = true;
            return ultima.llamada.m - 1;
        }
        m_memoria->escribe(ultima.llamada.m, ultima.llamada.n, valor);
        m_pila.pop_back();
    }
    return {};
}

/// The calls that wait all give 0, and leave it in their cells: some of them, the last ones first.
void Ack::abandona()
{
    for (int i = 0; i < LlamadasSeguidas && !m_pila.empty(); ++i) {
        const Llamada llamada = m_pila.back().llamada;
        m_pila.pop_back();
        m_memoria->escribe(llamada.m, llamada.n, 0);
    }
}

QString textoDeLlamada(Ack::Llamada llamada)
{
    return u"Ack(%1, %2)"_s.arg(llamada.m).arg(llamada.n);
}

QString textoDeValor(Ack::Llamada llamada, std::int32_t valor)
{
    const QString texto = textoDeLlamada(llamada);
    return valor > 0 ? u"%1 = %2"_s.arg(texto).arg(valor)
                     : Traduce(u"%1: sin terminar"_s).arg(texto);
}

std::int32_t enteroDeTexto(const QString &texto, const QString &nombre)
{
    if (!EsNumerico(texto)) {
        throw ErrorEjecucion(ErrorEjecucion::TipoNoCoincide,
                             Traduce(u"«%1» no es un número."_s).arg(nombre));
    }
    try {
        // Only exponents go through a double; everything else is read exactly.
        const auto exacto = Moneda::deTexto(texto.trimmed());
        const Moneda valor =
            exacto ? *exacto : Moneda::deReal(NumVal(QString(texto).replace(u',', u'.')));
        return valor.aEntero32();
    } catch (const ErrorEjecucion &error) {
        throw ErrorEjecucion(error.numero(), Traduce(u"«%1» es demasiado grande."_s).arg(nombre));
    }
}
