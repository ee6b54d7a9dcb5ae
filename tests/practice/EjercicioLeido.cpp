// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/practice/EjercicioLeido.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// An exponent, which stands higher than its base, is a number of its own.
Numeros numerosDe(const QString &texto)
{
    Numeros numeros;
    QChar antes;
    for (const QChar c : texto) {
        const bool sigue = antes.digitValue() >= 0 && antes.isDigit() == c.isDigit();
        if (c.digitValue() >= 0 && sigue)
            numeros.back() = numeros.back() * 10 + c.digitValue();
        else if (c.digitValue() >= 0)
            numeros << c.digitValue();
        antes = c;
    }
    return numeros;
}

} // namespace

Sorteado sortea(const TipoDeEjercicio &tipo, int nivel, int i)
{
    Sorteo sorteo(semillaDe(1, tipo.clave, nivel, i));
    Ejercicio e = tipo.genera(nivel, sorteo);
    const Leido leido{nivel, e.enunciado, numerosDe(e.enunciado)};
    return {e, leido};
}

Dada esperada(const Ejercicio &e)
{
    if (e.forma.palabras.contains(e.esperada))
        return {{}, e.esperada};
    Dada dada;
    if (e.forma.clase == FormaDeRespuesta::Producto) {
        for (const QString &potencia : e.esperada.split(u'*'))
            dada.n << potencia.section(u'^', 0, 0).toLongLong()
                   << std::max<qint64>(1, potencia.section(u'^', 1).toLongLong());
    } else if (e.forma.clase == FormaDeRespuesta::Solucion) {
        for (const QString &numero : leeRespuesta(e.esperada, e.forma).numeros)
            dada.n << numero.toLongLong();
    } else {
        for (const QString &numero : e.esperada.split(u", "_s))
            dada.n << numero.toLongLong();
    }
    return dada;
}
