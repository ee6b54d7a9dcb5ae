// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/TablaDeFactores.h"

#include "bignum/gateway/FactoresHallados.h"
#include "lessons/primes/ColFactores.h"
#include "lessons/primes/DivisionTentativa.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/run/Aparte.h"

#include <algorithm>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

/// By what a factor was found, and in what time.
QString hallazgoDe(const FactorHallado &factor)
{
    const QString tiempo = textoDeDuracion(factor.segundosDelMetodo * 1e9);
    switch (factor.metodo) {
    case MetodoDeFactor::Ninguno:
        return {};
    case MetodoDeFactor::DivisionTanteo:
        return Traduce(u"Hallado por división: %1."_s).arg(tiempo);
    case MetodoDeFactor::Rho:
        return Traduce(u"Hallado por el método rho de Pollard: %1."_s).arg(tiempo);
    case MetodoDeFactor::CurvaEliptica:
        return Traduce(u"Hallado por la curva elíptica número %1: %2."_s)
            .arg(formatoEntero(qint64{factor.curvas}), tiempo);
    case MetodoDeFactor::Criba:
        return Traduce(u"Hallado por la criba cuadrática: %1 relaciones, %2."_s)
            .arg(formatoEntero(qint64{factor.relaciones}), tiempo);
    case MetodoDeFactor::Raiz:
        return Traduce(u"Hallado al extraer una raíz: %1."_s).arg(tiempo);
    }
    return {};
}

FilaDeFactor filaDe(const FactorHallado &factor)
{
    return {factor.base, QString::number(factor.exponente), factor.primo,
            factor.primo ? hallazgoDe(factor)
                         : Traduce(u"Compuesto que no se ha podido factorizar"_s)};
}

/// Primes before what may be composite, and each kind ascending.
bool vaAntes(const FilaDeFactor &a, const FilaDeFactor &b)
{
    const auto orden = [](const FilaDeFactor &fila) {
        return std::tuple(!fila.primo, fila.factor.size(), fila.factor);
    };
    return orden(a) < orden(b);
}

TablaDeFactores::Desenlace desenlaceDe(FinDeFactores fin)
{
    switch (fin) {
    case FinDeFactores::TodosPrimos:
        return TablaDeFactores::Completa;
    case FinDeFactores::NoEsNumero:
        return TablaDeFactores::NoEsEntero;
    case FinDeFactores::SinMemoria:
        return TablaDeFactores::SinMemoria;
    case FinDeFactores::QuedaCompuesto:
    case FinDeFactores::Detenido: // by the end of the library, which hands over what is left
        break;
    }
    return TablaDeFactores::QuedaCompuesto;
}

RecibeFactor apuntaEn(TablaDeFactores &tabla)
{
    return [&tabla](const FactorHallado &factor) {
        tabla.filas << filaDe(factor);
        tabla.cortes << Corte{factor.base, factor.exponente, factor.primo,
                              factor.metodo == MetodoDeFactor::Ninguno,
                              tabla.filas.last().hallazgo};
        return true;
    };
}

/// What none of the factors of a run that was ended from outside holds.
void apuntaLoQueQueda(TablaDeFactores &tabla)
{
    QString hallados = u"1"_s;
    for (const Corte &corte : std::as_const(tabla.cortes))
        hallados += u"*%1^%2"_s.arg(corte.factor).arg(corte.exponente);
    const QString resto =
        calculaEntero(u"abs(%1) / (%2)"_s.arg(tabla.numero, hallados)).value_or(tabla.numero);
    if (resto != u"1"_s)
        tabla.filas << FilaDeFactor{resto, u"1"_s, false};
}

void acaba(TablaDeFactores &tabla, FinDeFactores fin)
{
    std::ranges::sort(tabla.filas, vaAntes);
    tabla.desenlace = tabla.numero == u"0"_s ? TablaDeFactores::EsCero : desenlaceDe(fin);
}

QString entreParentesis(const QString &numero)
{
    return u'(' + numero + u')';
}

QString potencia(const FilaDeFactor &fila)
{
    const QString base = fila.primo ? fila.factor : entreParentesis(fila.factor);
    return fila.exponente == u"1"_s ? base : base + enSuperindice(fila.exponente);
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
        potencias << potencia(fila);
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
        return Traduce(u"Factores de %1. Lo que está en rojo es compuesto y no se ha podido "
                       u"descomponer."_s)
            .arg(n);
    case EsCero:
        return Traduce(u"Todos los primos dividen al 0: no se puede descomponer."_s);
    case EsNegativo:
        return Traduce(u"Este algoritmo no descompone números negativos, como %1."_s).arg(n);
    case NoEsEntero:
        return Traduce(u"%1 no es un número entero: no tiene factores primos."_s).arg(n);
    case SinMemoria:
        return Traduce(u"Ha faltado memoria para descomponer %1."_s).arg(n);
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

QList<Corte> cortesDe(const RastroDeDivision &rastro)
{
    QList<Corte> cortes;
    for (const RastroDeDivision::Division &division : rastro.divisiones) {
        const QString tiempo = textoDeDuracion(division.segundos * 1e9);
        const QString como = division.esElResto
                                 ? Traduce(u"Queda cuando se ha pasado de la raíz cuadrada: %1."_s)
                                 : Traduce(u"Hallado por división: %1."_s);
        cortes << Corte{division.divisor.texto(),  1, true, division.esElResto, como.arg(tiempo),
                        division.alcanzado.texto()};
    }
    return cortes;
}

TablaDeFactores factorizaGrande(const QString &n)
{
    TablaDeFactores tabla{n};
    const FinDeFactores fin = BuscaFactores(n, apuntaEn(tabla));
    acaba(tabla, fin);
    return tabla;
}

Tarea<TablaDeFactores> factorizaAparte(QString n, Billete billete)
{
    TablaDeFactores tabla;
    tabla.numero = n;
    const RecibeFactor recibe = apuntaEn(tabla);
    const FinDeFactores fin = co_await Aparte::buscaFactores(n, recibe, billete);
    if (fin == FinDeFactores::Detenido)
        apuntaLoQueQueda(tabla);
    acaba(tabla, fin);
    co_return tabla;
}

bool puedeTardar(const QString &n)
{
    // Two primes of 30 digits take a second or so, of 35 several.
    constexpr int digitosDeUnSegundo = 60;
    return n.size() > digitosDeUnSegundo;
}
