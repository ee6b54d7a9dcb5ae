#include "lessons/primes/TablaDeFactores.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/ColFactores.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// At least the number of different primes that a number of so many digits can have: k of them have
/// a product above k!, and k! > (k/e)^k.
qsizetype maximoDePrimos(qsizetype digitos)
{
    qsizetype k = 3;
    const auto cabe = [&] {
        const auto veces = static_cast<double>(k);
        return veces * std::log10(veces / std::exp(1.0)) <= static_cast<double>(digitos);
    };
    while (cabe())
        ++k;
    return k;
}

QString entreParentesis(const QString &numero)
{
    return u'(' + numero + u')';
}

QString potencia(const QString &base, const QString &exponente)
{
    return exponente == u"1"_s ? base : base + enSuperindice(exponente);
}

QString fraseCompleta(const QString &numero, const QList<FilaDeFactor> &filas)
{
    if (filas.isEmpty())
        return Traduce(u"%1 no tiene factores primos."_s).arg(numero);
    if (filas.size() == 1 && filas.first().exponente == u"1"_s)
        return Traduce(u"%1: el único factor es primo."_s).arg(numero);
    return Traduce(u"Factores primos de %1."_s).arg(numero);
}

/// Trial division leaves something only where it was stopped, or where it does not begin.
TablaDeFactores::Desenlace desenlaceDeUnResto(Moneda resto)
{
    if (resto == Moneda())
        return TablaDeFactores::EsCero;
    return resto < Moneda() ? TablaDeFactores::EsNegativo : TablaDeFactores::Detenida;
}

} // namespace

QString TablaDeFactores::producto() const
{
    QStringList potencias;
    for (const FilaDeFactor &fila : filas)
        potencias << potencia(fila.factor, fila.exponente);
    if (desenlace == QuedaCompuesto)
        potencias.last() = potencia(entreParentesis(filas.last().factor), filas.last().exponente);
    if (!resto.isEmpty() && !potencias.isEmpty())
        potencias << entreParentesis(resto);
    return potencias.join(u" · "_s);
}

QString TablaDeFactores::frase() const
{
    const QString n = formatoAbreviado(numero);
    switch (desenlace) {
    case Completa:
        return fraseCompleta(n, filas);
    case Detenida:
        return Traduce(u"Detenida. De %1 falta por descomponer %2."_s)
            .arg(n, formatoAbreviado(resto));
    case QuedaCompuesto:
        return Traduce(u"Factores de %1. El último, en rojo, es compuesto y no se ha podido "
                       u"descomponer."_s)
            .arg(n);
    case EsCero:
        return Traduce(u"Todos los primos dividen al 0: no se puede descomponer."_s);
    case EsNegativo:
        return Traduce(u"Este algoritmo no descompone números negativos, como %1."_s).arg(n);
    case NoEsEntero:
        return Traduce(u"%1 no es un número entero: no tiene factores primos."_s).arg(n);
    case Fallida:
        return Traduce(u"No se ha podido factorizar %1."_s).arg(n);
    }
    return {};
}

TablaDeFactores tablaDe(const QString &numero, const ColFactores &factores)
{
    TablaDeFactores tabla{numero};
    Moneda resto = Moneda::deTexto(numero).value_or(Moneda());
    for (const clsFactorPrimo &factor : factores) {
        tabla.filas << FilaDeFactor{factor.Primo().texto(), QString::number(factor.exponente())};
        for (int i = 0; i < factor.exponente(); ++i)
            resto = cociente(resto, factor.Primo());
    }
    if (resto == Moneda::deEntero(1))
        return tabla;
    tabla.desenlace = desenlaceDeUnResto(resto);
    tabla.resto = resto.texto();
    return tabla;
}

TablaDeFactores factorizaGrande(const QString &n)
{
    TablaDeFactores tabla{n};
    const qsizetype cuantos = maximoDePrimos(n.size());
    QStringList primos(cuantos), exponentes(cuantos);
    const bool completa = Factoriza(n, primos, exponentes) != 0;
    for (qsizetype i = 0; i < cuantos && !primos[i].isEmpty(); ++i)
        tabla.filas << FilaDeFactor{primos[i], exponentes[i]};
    if (n.contains(u'/'))
        tabla.desenlace = TablaDeFactores::NoEsEntero;
    else if (n == u"0"_s)
        tabla.desenlace = TablaDeFactores::EsCero;
    else if (!completa)
        tabla.desenlace =
            tabla.filas.isEmpty() ? TablaDeFactores::Fallida : TablaDeFactores::QuedaCompuesto;
    return tabla;
}

bool puedeTardar(const QString &n)
{
    // Two primes of 25 digits take a second or so, of 30 several.
    constexpr int digitosDeUnSegundo = 50;
    return n.size() > digitosDeUnSegundo;
}
