// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/ResumenUnidades.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/units/FuncionEuler.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

QString cifras(std::int32_t n)
{
    return formatoEntero(qint64(n));
}

/// "φ(14) = 6, según la biblioteca. Por factores: 14 = 2 · 7; φ(14) = (2 − 1) · (7 − 1) = 6"; of a
/// number without factors the library's value alone.
QString lineaDeEuler(const GrupoUnidades &grupo)
{
    const QString n = QString::number(grupo.modulo());
    const QString segunBiblioteca =
        Traduce(u"φ(%1) = %2, según la biblioteca."_s).arg(n, FiEuler(n));
    const FuncionEuler euler(n);
    if (euler.factores().isEmpty())
        return segunBiblioteca;
    const QString factores = euler.factorizacion();
    const QString descomposicion =
        factores == n ? Traduce(u"%1 es primo"_s).arg(n) : n + u" = "_s + factores;
    return segunBiblioteca + u' ' +
           Traduce(u"Por factores: %1; φ(%2) = %3 = %4"_s)
               .arg(descomposicion, n, euler.formula(), euler.valor());
}

QString lineaDeRaices(const GrupoUnidades &grupo)
{
    if (!grupo.esCiclico())
        return Traduce(
                   u"No hay raíces primitivas: el grupo no es cíclico, y el mayor orden es %1."_s)
            .arg(cifras(grupo.exponente()));
    const int raices = grupo.numeroDeRaicesPrimitivas();
    if (raices == 1)
        return Traduce(u"El grupo es cíclico, con una raíz primitiva."_s);
    return Traduce(u"El grupo es cíclico, con %1 raíces primitivas."_s).arg(cifras(raices));
}

} // namespace

QString resumenDelGrupo(const GrupoUnidades &grupo)
{
    const QString anillo = u'Z' + subindice(grupo.modulo());
    const QString cuenta =
        grupo.fi() == 1 ? Traduce(u"%1 tiene una unidad."_s).arg(anillo)
                        : Traduce(u"%1 tiene %2 unidades."_s).arg(anillo, cifras(grupo.fi()));
    return cuenta + u' ' + lineaDeRaices(grupo) + u'\n' + lineaDeEuler(grupo);
}

QString resumenDePotencias(const GrupoUnidades &grupo, std::int32_t a)
{
    const std::int32_t n = grupo.modulo(), dentro = grupo.representante(a);
    const Unidad *unidad = grupo.unidad(a);
    if (!unidad)
        return Traduce(u"%1 no es una unidad, porque mcd(%1, %2) = %3: sus potencias no vuelven a "
                       u"ser 1, y se repiten desde la de exponente %4."_s)
            .arg(dentro)
            .arg(n)
            .arg(std::gcd(dentro, n))
            .arg(grupo.potencias(a).vuelta);
    if (grupo.esRaizPrimitiva(*unidad))
        return Traduce(u"%1 es una raíz primitiva: su orden es %2 y sus potencias son todas las "
                       u"unidades."_s)
            .arg(dentro)
            .arg(unidad->orden);
    return Traduce(u"El orden de %1 es %2: sus potencias son %2 de las %3 unidades."_s)
        .arg(dentro)
        .arg(unidad->orden)
        .arg(grupo.fi());
}

QString subindice(std::int32_t n)
{
    QString texto = QString::number(n);
    for (QChar &cifra : texto)
        cifra = QChar(static_cast<char16_t>(u'₀' + (cifra.unicode() - u'0')));
    return texto;
}
