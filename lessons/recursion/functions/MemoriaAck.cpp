// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/MemoriaAck.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

void MemoriaAck::amplia(std::int32_t m, std::int32_t n)
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

void MemoriaAck::alarga(std::size_t columna, std::size_t fila)
{
    if (columna >= m_valores.size())
        m_valores.resize(columna + 1);
    if (fila >= m_valores[columna].size())
        m_valores[columna].resize(fila + 1, Vacia);
}
