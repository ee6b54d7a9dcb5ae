// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/practice/EjercicioLeido.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Numeros numerosDe(const QString &texto)
{
    Numeros numeros;
    bool dentro = false;
    for (const QChar c : texto) {
        if (c.isDigit() && dentro)
            numeros.back() = numeros.back() * 10 + c.digitValue();
        else if (c.isDigit())
            numeros << c.digitValue();
        dentro = c.isDigit();
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
