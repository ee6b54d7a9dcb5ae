// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/TablaCayley.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/units/ResumenUnidades.h"
#include "shell/core/ModGlobal.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

TablaCayley::TablaCayley(std::int32_t n, Operacion operacion) : m_n(n), m_operacion(operacion)
{
    if (n < 1 || n > MayorModulo)
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido);
    for (std::int32_t a = 0; a < n; ++a) {
        if (operacion != Operacion::ProductoDeUnidades || std::gcd(a, n) == 1)
            m_elementos << a;
    }
}

std::int32_t TablaCayley::resultado(qsizetype fila, qsizetype columna) const
{
    const std::int32_t a = m_elementos[fila], b = m_elementos[columna];
    return (m_operacion == Operacion::Suma ? a + b : a * b) % m_n;
}

std::int32_t TablaCayley::neutro() const
{
    return m_operacion == Operacion::Suma ? 0 : 1 % m_n;
}

QString TablaCayley::explicacion(qsizetype fila, qsizetype columna) const
{
    return u"%1 %2 %3 ≡ %4 (mod %5)"_s.arg(m_elementos[fila])
        .arg(QChar(m_operacion == Operacion::Suma ? u'+' : u'·'))
        .arg(m_elementos[columna])
        .arg(resultado(fila, columna))
        .arg(m_n);
}

QString TablaCayley::descripcion() const
{
    QString texto;
    switch (m_operacion) {
    case Operacion::ProductoDeUnidades:
        texto = Traduce(u"Producto de las unidades de Z%1, que son %2. Cada valor tiene su color; "
                        u"el neutro, el %3, resalta en el cruce de cada unidad con su inversa."_s);
        break;
    case Operacion::Producto:
        texto = Traduce(u"Producto en Z%1, de %2 elementos. Cada valor tiene su color; el neutro, "
                        u"el %3, resalta, y falta en las filas de los que no son unidades."_s);
        break;
    case Operacion::Suma:
        texto = Traduce(u"Suma en Z%1, de %2 elementos. Cada valor tiene su color; el neutro, el "
                        u"%3, resalta en el cruce de cada elemento con su opuesto."_s);
        break;
    }
    return texto.arg(subindice(m_n)).arg(m_elementos.size()).arg(neutro()) + u' ' +
           Traduce(u"Elija una casilla para leerla."_s);
}
