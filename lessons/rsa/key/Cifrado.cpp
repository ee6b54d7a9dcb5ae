// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/key/Cifrado.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/rsa/key/TextoEnBloques.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

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

Tarea<QStringList> codifica(QString texto, int r, Potencias potencias, Billete billete)
{
    PaquetesDeTexto paquetes(texto, r);
    QStringList bloques;
    bloques.reserve(paquetes.cuantos());
    while (paquetes.hay()) {
        bloques << potencias.de(paquetes.siguiente());
        co_await billete.ceder();
        if (billete.detenida())
            break;
    }
    co_return bloques;
}

Tarea<QString> descodifica(QStringList bloques, Potencias potencias, Billete billete)
{
    QString texto;
    for (const QString &bloque : bloques) {
        if (const QString numero = potencias.de(bloque); !esError(numero))
            texto += NumeroATexto(numero);
        if (texto.size() > MaximoDescodificado)
            throw ErrorEjecucion(ErrorEjecucion::MemoriaInsuficiente,
                                 Traduce(u"El texto descodificado es demasiado largo."_s));
        co_await billete.ceder();
        if (billete.detenida())
            break;
    }
    co_return texto;
}
