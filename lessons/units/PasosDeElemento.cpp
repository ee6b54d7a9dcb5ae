// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/PasosDeUnidades.h"

#include "lessons/units/OrbitaDeElemento.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/PasosDeInverso.h"
#include "shell/core/steps/PasosDePotencia.h"

#include <QSet>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MasClases = 48;       ///< units whose shares are written out
constexpr qsizetype MasPasos = 100; ///< powers that are steps of their own

QString cifras(qint64 n)
{
    return QString::number(n);
}

/// The power of exponent k, or in the last step that which repeats.
Paso potencia(const GrupoUnidades &grupo, const PotenciasDeElemento &potencias, std::int32_t a,
              qsizetype k)
{
    const qsizetype todas = potencias.valores.size();
    const bool ultima = k == todas;
    const std::int32_t valor = potencias.valores[ultima ? potencias.vuelta : k];
    const QString n = cifras(grupo.modulo());
    Paso paso{
        ultima ? Traduce(u"La potencia de exponente %1 es otra vez la de exponente %2: desde ahí "
                         "se repiten."_s)
                     .arg(k)
                     .arg(potencias.vuelta)
               : Traduce(u"Potencia de exponente %1."_s).arg(k)};
    if (k > 0)
        paso.formulas << Formula(u"%1*%2 == %3 (mod %4)"_s.arg(cifras(potencias.valores[k - 1]),
                                                               cifras(a), cifras(valor), n));
    paso.formulas << Formula(u"%1^%2 == %3 (mod %4)"_s.arg(cifras(a), cifras(k), cifras(valor), n));
    paso.lamina = orbitaDeElemento(potencias, k);
    return paso;
}

/// Of many powers the first ones and the one that repeats.
Pasos orbita(const GrupoUnidades &grupo, std::int32_t a)
{
    const PotenciasDeElemento potencias = grupo.potencias(a);
    const qsizetype todas = potencias.valores.size();
    return Pasos(std::min(todas, MasPasos) + 1, [grupo, potencias, a, todas](qsizetype i) {
        return potencia(grupo, potencias, a, i == MasPasos ? todas : i);
    });
}

/// The classes u·⟨a⟩, a row each.
TablaDePaso clases(const GrupoUnidades &grupo, std::int32_t a)
{
    TablaDePaso tabla{{Traduce(u"Clase de"_s), Traduce(u"Elementos"_s)}, {}};
    QSet<std::int32_t> vistas;
    const QList<std::int32_t> potencias = grupo.potencias(a).valores;
    for (const Unidad &unidad : grupo.unidades()) {
        if (vistas.contains(unidad.valor))
            continue;
        QStringList elementos;
        for (const std::int32_t p : potencias) {
            const std::int32_t valor = grupo.representante(std::int64_t(unidad.valor) * p);
            vistas << valor;
            elementos << cifras(valor);
        }
        tabla.filas << QStringList{cifras(unidad.valor), elementos.join(u", "_s)};
    }
    return tabla;
}

Paso lagrange(const GrupoUnidades &grupo, const Unidad &unidad)
{
    const QString orden = cifras(unidad.orden), fi = cifras(grupo.fi());
    Paso paso{
        Traduce(u"El orden de %1 es %2, y divide a las %3 unidades: multiplicando sus potencias "
                "por cada unidad salen %4 clases iguales de grandes."_s)
            .arg(cifras(unidad.valor), orden, fi, cifras(grupo.fi() / unidad.orden)),
        {Formula(u"%1 | %2, %2 = %1*%3"_s.arg(orden, fi, cifras(grupo.fi() / unidad.orden)))},
        Traduce(u"Teorema de Lagrange. Por eso toda unidad elevada a φ(n) da 1."_s)};
    paso.formulas << Formula(
        u"%1^%2 == 1 (mod %3)"_s.arg(cifras(unidad.valor), fi, cifras(grupo.modulo())));
    if (grupo.fi() <= MasClases)
        paso.tabla = clases(grupo, unidad.valor);
    return paso;
}

Paso inversoComoPotencia(const GrupoUnidades &grupo, const Unidad &unidad)
{
    return {Traduce(u"El inverso es también la potencia de exponente orden − 1 = %1. Por cuadrados "
                    "sucesivos:"_s)
                .arg(unidad.orden - 1),
            {Formula(u"%1^%2*%1 == 1 (mod %3)"_s.arg(cifras(unidad.valor), cifras(unidad.orden - 1),
                                                     cifras(grupo.modulo())))}};
}

} // namespace

Pasos pasosDeElemento(const GrupoUnidades &grupo, std::int32_t a)
{
    const std::int32_t dentro = grupo.representante(a);
    const QString n = cifras(grupo.modulo());
    QList<Pasos> partes{orbita(grupo, dentro), pasosDeInverso(cifras(dentro), n)};
    if (const Unidad *unidad = grupo.unidad(dentro)) {
        partes.insert(1, Pasos(QList<Paso>{lagrange(grupo, *unidad)}));
        partes << Pasos(QList<Paso>{inversoComoPotencia(grupo, *unidad)})
               << pasosDePotencia(cifras(dentro), cifras(unidad->orden - 1), n);
    }
    return Pasos::seguidos(partes).comoPelicula();
}
