// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/CuestionEuclides.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

const Moneda Cero;

QString reparo(NoLeido::Motivo motivo)
{
    switch (motivo) {
    case NoLeido::Vacio:
        return Traduce(u"%1 está en blanco"_s);
    case NoLeido::SinValor:
        return Traduce(u"%1 no se puede calcular"_s);
    case NoLeido::Fraccion:
        return Traduce(u"%1 no es un número entero"_s);
    case NoLeido::Menor:
        return Traduce(u"%1 es demasiado pequeño"_s);
    case NoLeido::Mayor:
        break;
    }
    return Traduce(u"%1 es demasiado grande"_s);
}

/// One of the two numbers; what is no number counts as 0, by which nothing can be divided.
Moneda leeNumero(const QString &nombre, const QString &texto, QStringList &faltas)
{
    const Moneda mayor = Moneda::deEntero(Moneda::MaximoEntero);
    const auto leido = leeEntero(texto, -mayor, mayor);
    if (leido && *leido != Cero)
        return *leido;
    faltas << (leido ? Traduce(u"%1 es 0"_s) : reparo(leido.razon().motivo)).arg(nombre);
    return Cero;
}

/// The number of divisions asked for; nothing for a negative one, which no count is.
std::optional<std::int16_t> leeDivisiones(QString texto, QStringList &faltas)
{
    const Moneda maximo = Moneda::deEntero(100);
    const Evaluacion evaluacion = EvaluaConDesenlace(texto, maximo.texto());
    if (evaluacion.desenlace != Evaluacion::ConValor) {
        const auto motivo = evaluacion.desenlace == Evaluacion::Vacia         ? NoLeido::Vacio
                            : evaluacion.desenlace == Evaluacion::SobreLaCota ? NoLeido::Mayor
                                                                              : NoLeido::SinValor;
        faltas << reparo(motivo).arg(u"n"_s);
        return std::int16_t{0};
    }
    if (evaluacion.valor.startsWith(u'-'))
        return {};
    return EvaluaMoneda(evaluacion.valor, maximo).aEntero16();
}

} // namespace

CuestionEuclides::Juicio CuestionEuclides::juzga(const QString &a, const QString &b,
                                                 const QString &n)
{
    QStringList faltas;
    const Moneda primero = leeNumero(u"a"_s, a, faltas);
    const Moneda segundo = leeNumero(u"b"_s, b, faltas);
    const auto divisiones = leeDivisiones(n, faltas);
    m_mcd.ponNúmero2(primero);
    m_mcd.ponNúmero1(segundo);
    const bool coincide = m_mcd.NumDivisiones() == divisiones;
    if (!faltas.isEmpty())
        return {coincide, true, Traduce(u"Faltan datos: %1."_s).arg(faltas.join(u"; "_s))};
    return {coincide, false,
            coincide ? Traduce(u"Correcto"_s)
                     : Traduce(u"No es correcto (iteraciones: %1)"_s).arg(m_mcd.NumDivisiones())};
}
