// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/PasosDeUnidades.h"
#include "shell/core/ModGlobal.h"

#include <QMap>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype MasEnFormula = 16;

QString cifras(qint64 n)
{
    return QString::number(n);
}

QMap<std::int32_t, int> unidadesPorOrden(const GrupoUnidades &grupo)
{
    QMap<std::int32_t, int> cuantas;
    for (const Unidad &unidad : grupo.unidades())
        ++cuantas[unidad.orden];
    return cuantas;
}

Paso recuento(const GrupoUnidades &grupo)
{
    const QString n = cifras(grupo.modulo()), fi = cifras(grupo.fi());
    return {
        Traduce(u"Las unidades de Z módulo %1 son los %2 restos que no tienen factores comunes con "
                "él."_s)
            .arg(n, fi),
        {Formula(u"φ(%1) = %2"_s.arg(n, fi))},
        Traduce(u"Un resto tiene inverso exactamente cuando su mcd con el módulo es 1."_s)};
}

Paso ordenes(const GrupoUnidades &grupo)
{
    TablaDePaso tabla{
        {Traduce(u"Orden"_s), Traduce(u"Unidades"_s), Traduce(u"φ(n) entre el orden"_s)}, {}};
    QStringList cuentas, divisores;
    const auto cuantas = unidadesPorOrden(grupo);
    for (auto i = cuantas.cbegin(); i != cuantas.cend(); ++i) {
        tabla.filas << QStringList{cifras(i.key()), cifras(i.value()),
                                   cifras(grupo.fi() / i.key())};
        cuentas << cifras(i.value());
        divisores << u"%1 | %2"_s.arg(i.key()).arg(grupo.fi());
    }
    Paso paso{
        Traduce(u"Cada orden divide al número de unidades."_s),
        {},
        Traduce(u"Teorema de Lagrange: las potencias de una unidad reparten el grupo en clases "
                "con tantos elementos como su orden."_s),
        tabla};
    if (divisores.size() <= MasEnFormula)
        paso.formulas << Formula(divisores.join(u", "_s));
    paso.formulas << Formula(cuentas.join(u" + "_s) + u" = "_s + cifras(grupo.fi()));
    return paso;
}

Paso ciclico(const GrupoUnidades &grupo)
{
    QStringList todos;
    for (const std::int32_t orden : unidadesPorOrden(grupo).keys())
        todos << cifras(orden);
    const QString mcm =
        u"%1(%2) = %3"_s.arg(Traduce(u"mcm"_s), todos.join(u"; "_s), cifras(grupo.exponente()));
    if (grupo.esCiclico())
        return {
            Traduce(u"Hay unidades de orden %1: sus potencias son todas las unidades, y el grupo "
                    "es cíclico."_s)
                .arg(grupo.fi()),
            {Formula(mcm), Formula(u"%1 = φ(%2)"_s.arg(grupo.exponente()).arg(grupo.modulo()))}};
    return {
        Traduce(u"El mayor orden es %1, menor que el número de unidades: el grupo no es cíclico."_s)
            .arg(grupo.exponente()),
        {Formula(mcm), Formula(u"%1 < φ(%2)"_s.arg(grupo.exponente()).arg(grupo.modulo()))}};
}

} // namespace

Pasos pasosDelGrupo(const GrupoUnidades &grupo)
{
    return Pasos(3, [grupo](qsizetype i) {
        return i == 0 ? recuento(grupo) : i == 1 ? ordenes(grupo) : ciclico(grupo);
    });
}
