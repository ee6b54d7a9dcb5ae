#include "lessons/recursion/functions/Ack.h"

#include "bignum/gateway/ErrorEjecucion.h"
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
    for (int i = 0; i < LlamadasSeguidas && !m_rendido; ++i) {
        const std::int32_t valor = entra(llamada);
        if (m_rendido)
            break;
        if (valor == 0)
            llamada = aplaza(llamada);
        else if (!devuelve(valor, llamada))
            return valor;
    }
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

/// Puts a call on the stack and gives the one that it waits for.
Ack::Llamada Ack::aplaza(Llamada llamada)
{
    const auto [m, n] = llamada;
    m_pila.push_back({llamada, n == 0});
    return n == 0 ? Llamada{m - 1, 1} : Llamada{m, n - 1};
}

/// Hands a value to the calls that wait for it. True when one of them goes on with another call;
/// false when the value is that of the whole.
bool Ack::devuelve(std::int32_t valor, Llamada &siguiente)
{
    while (!m_pila.empty()) {
        Pendiente &ultima = m_pila.back();
        if (!ultima.esperaSuValor) {
            ultima.esperaSuValor = true;
            siguiente = {ultima.llamada.m - 1, valor};
            return true;
        }
        m_memoria->escribe(ultima.llamada.m, ultima.llamada.n, valor);
        m_pila.pop_back();
    }
    return false;
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
