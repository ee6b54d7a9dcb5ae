#include "lessons/recursion/functions/MemoriaAck.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

void MemoriaAck::hazSitio(std::int32_t m, std::int32_t n)
{
    if (m >= MaximoDeLineas || n >= MaximoDeLineas) {
        const QString detalle =
            Traduce(u"Ack(%1, %2) no cabe: la tabla llega a %3 filas y otras tantas columnas."_s);
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento,
                             detalle.arg(m).arg(n).arg(formatoEntero(qint64{MaximoDeLineas})));
    }
    m_columnas = std::max(m_columnas, m + 1);
    m_filas = std::max(m_filas, n + 1);
}

std::int32_t MemoriaAck::casilla(std::int32_t m, std::int32_t n) const
{
    const auto columna = static_cast<std::size_t>(m);
    const auto fila = static_cast<std::size_t>(n);
    if (columna >= m_valores.size() || fila >= m_valores[columna].size())
        return Vacia;
    return m_valores[columna][fila];
}

std::int32_t MemoriaAck::lee(std::int32_t m, std::int32_t n) const
{
    return std::max(std::int32_t{0}, casilla(m, n));
}

void MemoriaAck::escribe(std::int32_t m, std::int32_t n, std::int32_t valor)
{
    const auto columna = static_cast<std::size_t>(m);
    const auto fila = static_cast<std::size_t>(n);
    if (columna >= m_valores.size())
        m_valores.resize(columna + 1);
    if (fila >= m_valores[columna].size())
        m_valores[columna].resize(fila + 1, Vacia);
    m_valores[columna][fila] = valor;
}
