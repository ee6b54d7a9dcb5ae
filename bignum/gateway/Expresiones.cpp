// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/Expresiones.h"

#include "bignum/bignum.h"
#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/Windows1252.h"

using Clase = FalloDeExpresion::Clase;

namespace {

Clase claseDe(std::int32_t fallo)
{
    switch (fallo) {
    case BIGNUM_NO_FAULT:
        return Clase::Ninguno;
    case BIGNUM_MISSING_OPERAND:
        return Clase::FaltaNumero;
    case BIGNUM_MISSING_OPERATOR:
        return Clase::FaltaOperacion;
    case BIGNUM_MISPLACED:
        return Clase::FueraDeLugar;
    case BIGNUM_UNKNOWN:
        return Clase::Desconocido;
    case BIGNUM_BAD_ARGUMENTS:
        return Clase::Argumentos;
    case BIGNUM_ZERO_DIVISION:
        return Clase::DivisionPorCero;
    case BIGNUM_NOT_WHOLE:
        return Clase::NoEsEntero;
    case BIGNUM_OUT_OF_DOMAIN:
        return Clase::FueraDeDominio;
    case BIGNUM_TOO_SLOW:
        return Clase::DemasiadoTrabajo;
    default:
        return Clase::DemasiadoGrande;
    }
}

/// The first character that the library cannot be given; empty when there is none.
QString primeroSinByte(const QString &texto)
{
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QString caracter = texto.mid(i, texto[i].isHighSurrogate() ? 2 : 1);
        if (!aWindows1252(caracter))
            return caracter;
    }
    return {};
}

QList<FuncionDeExpresiones> leeFunciones()
{
    QList<FuncionDeExpresiones> lista;
    BignumFunction f;
    for (std::int32_t i = 0; EvalFunction(i, &f) != 0; ++i)
        lista << FuncionDeExpresiones{QString::fromUtf8(f.spanish),
                                      QString::fromUtf8(f.international),
                                      QString::fromUtf8(f.description), f.maxArguments > 1};
    return lista;
}

} // namespace

const QList<FuncionDeExpresiones> &funcionesDeExpresiones()
{
    static const QList<FuncionDeExpresiones> lista = leeFunciones();
    return lista;
}

FalloDeExpresion falloDeExpresion(QString expresion)
{
    ReescribeMod(expresion);
    const auto bytes = aWindows1252(expresion);
    if (!bytes)
        return {Clase::Desconocido, primeroSinByte(expresion)};
    std::int32_t inicio = 0;
    std::int32_t largo = 0;
    // A byte is a character, so that places in both are the same.
    const Clase clase = claseDe(QEvalFault(bytes->constData(), &inicio, &largo));
    return {clase, expresion.mid(inicio, largo)};
}
