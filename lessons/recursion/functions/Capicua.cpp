#include "lessons/recursion/functions/Capicua.h"

#include "bignum/gateway/ModBignum.h"

#include <algorithm>

QString Inverso(const QString &texto)
{
    QString inverso(texto.size(), Qt::Uninitialized);
    std::reverse_copy(texto.cbegin(), texto.cend(), inverso.begin());
    return inverso;
}

Capicua::Fin Capicua::busca(const QString &inicio, Corrida &corrida)
{
    m_numSumas = 0;
    m_actual = Evalua(QString(inicio));
    m_numeros = {m_actual};
    while (true) {
        const QChar primera = m_actual.isEmpty() ? QChar() : m_actual.front();
        if (primera < u'0' || primera > u'9')
            return Fin::SinNumero;
        if (corrida.detenida())
            return Fin::Detenida;
        corrida.ceder();
        const QString inverso = Inverso(m_actual);
        if (m_actual == inverso)
            return Fin::Hallado;
        QString suma = m_actual + u'+' + inverso;
        m_actual = Evalua(suma);
        ++m_numSumas;
        if (m_numeros.size() < NumerosGuardados)
            m_numeros << m_actual;
    }
}
