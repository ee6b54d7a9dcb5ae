// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/Capicua.h"

#include "bignum/gateway/ModBignum.h"

#include <algorithm>

QString Inverso(const QString &texto)
{
    QString inverso(texto.size(), Qt::Uninitialized);
    std::reverse_copy(texto.cbegin(), texto.cend(), inverso.begin());
    return inverso;
}

Tarea<Capicua::Fin> Capicua::busca(QString inicio, Billete billete)
{
    m_numSumas = 0;
    m_actual = Evalua(inicio);
    m_numeros = {m_actual};
    while (true) {
        const QChar primera = m_actual.isEmpty() ? QChar() : m_actual.front();
        if (primera < u'0' || primera > u'9')
            co_return porqueNoEsNumero();
        co_await billete.ceder();
        if (billete.detenida())
            co_return Fin::Detenida;
        const QString inverso = Inverso(m_actual);
        if (m_actual == inverso)
            co_return Fin::Hallado;
        QString suma = m_actual + u'+' + inverso;
        m_actual = Evalua(suma);
        ++m_numSumas;
        if (m_numeros.size() < NumerosGuardados)
            m_numeros << m_actual;
    }
}

Capicua::Fin Capicua::porqueNoEsNumero() const
{
    if (m_numSumas > 0)
        return Fin::DemasiadasCifras;
    return m_actual.startsWith(u'-') ? Fin::Negativo : Fin::SinValor;
}
