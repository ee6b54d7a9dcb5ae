// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Lectura.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <QRegularExpression>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Entero>
Entero redondeadoAlPar(double valor)
{
    const double entero = std::nearbyint(valor);
    using Limites = std::numeric_limits<Entero>;
    if (!(entero >= Limites::min() && entero <= Limites::max()))
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
    return static_cast<Entero>(entero);
}

NoLeido::Motivo motivoDe(Evaluacion::Desenlace desenlace)
{
    if (desenlace == Evaluacion::SobreLaCota)
        return NoLeido::Mayor;
    return desenlace == Evaluacion::Vacia ? NoLeido::Vacio : NoLeido::SinValor;
}

} // namespace

bool esError(QStringView resultado)
{
    return resultado == TextoError;
}

std::optional<QString> sinError(QString resultado)
{
    return esError(resultado) ? std::nullopt : std::optional(std::move(resultado));
}

std::optional<QString> calculaEntero(QString expresion)
{
    return sinError(Evalua(expresion, {}, Aritmetica::Entera));
}

QString NoLeido::frase() const
{
    switch (motivo) {
    case Vacio:
        return Traduce(u"Escriba un número entero."_s);
    case SinValor:
        return Traduce(u"Lo escrito no es una expresión que se pueda calcular."_s);
    case Fraccion:
        return Traduce(u"El valor escrito no es un número entero."_s);
    case Menor:
        return Traduce(u"El menor número permitido es "_s) + formatoEntero(cota) + u'.';
    case Mayor:
        break;
    }
    return Traduce(u"El mayor número permitido es "_s) + formatoEntero(cota) + u'.';
}

Lectura<QString> leeEntero(QString expresion, const Cotas &cotas)
{
    const Evaluacion evaluacion = EvaluaConDesenlace(expresion, cotas.maximo);
    if (evaluacion.desenlace != Evaluacion::ConValor)
        return NoLeido{motivoDe(evaluacion.desenlace), cotas.maximo.value_or(QString())};
    if (evaluacion.valor.contains(u'/'))
        return NoLeido{NoLeido::Fraccion, {}};
    if (cotas.minimo && EsMayor(evaluacion.valor, *cotas.minimo))
        return NoLeido{NoLeido::Menor, *cotas.minimo};
    return evaluacion.valor;
}

Lectura<Moneda> leeEntero(const QString &expresion, Moneda minimo, Moneda maximo)
{
    const auto leido = leeEntero(expresion, {minimo.texto(), maximo.texto()});
    if (!leido)
        return leido.razon();
    return *Moneda::deTexto(*leido);
}

bool EsNumerico(const QString &texto)
{
    static const QRegularExpression forma(
        u"^\\s*[+-]?(\\d+([.,]\\d*)?|[.,]\\d+)([eEdD][+-]?\\d+)?\\s*$"_s);
    return forma.match(texto).hasMatch() &&
           std::isfinite(QString(texto)
                             .replace(u',', u'.')
                             .replace(QChar(u'd'), QChar(u'e'), Qt::CaseInsensitive)
                             .trimmed()
                             .toDouble());
}

std::int16_t aEntero16(double valor)
{
    return redondeadoAlPar<std::int16_t>(valor);
}

std::int32_t aEntero32(double valor)
{
    return redondeadoAlPar<std::int32_t>(valor);
}
