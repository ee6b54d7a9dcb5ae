#include "lessons/rsa/key/Potencias.h"

#include "bignum/gateway/ModBignum.h"

Potencias::Potencias(const QString &exponente, const QString &modulo)
    : m_exponente(exponente), m_modulo(modulo)
{
}

QString Potencias::de(const QString &base)
{
    // Enough for every block of one character, and for what a message repeats; a hostile message of
    // a million different blocks does not fill the memory.
    constexpr qsizetype maximo = 4096;
    if (const auto conocida = m_conocidas.constFind(base); conocida != m_conocidas.constEnd())
        return *conocida;
    QString potencia = PotenciaMod(base, m_exponente, m_modulo);
    const bool empiezaPorCifra =
        !potencia.isEmpty() && potencia.front() >= u'0' && potencia.front() <= u'9';
    if (!empiezaPorCifra)
        potencia = TextoError.toString();
    if (m_conocidas.size() < maximo)
        m_conocidas.insert(base, potencia);
    return potencia;
}
