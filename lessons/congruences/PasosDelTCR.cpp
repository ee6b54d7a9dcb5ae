// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/congruences/PasosDelTCR.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/congruences/CaminosDelTCR.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

Formula congruencia(const QString &uno, const QString &otro, const EnteroLargo &modulo)
{
    return {u"%1 == %2 (mod %3)"_s.arg(uno, otro, modulo.texto())};
}

Paso comprobacionDelTCR(const QList<FilaDelTCR> &filas, const EnteroLargo &solucion)
{
    Paso paso{Traduce(u"La solución %1 cumple todas las filas."_s).arg(solucion.texto())};
    for (const FilaDelTCR &fila : filas)
        paso.formulas << congruencia(solucion.texto(), fila.resto.texto(), fila.modulo);
    paso.regla =
        Traduce(u"Las demás soluciones son las que se diferencian de ella en un múltiplo del "
                "mínimo común múltiplo de los módulos."_s);
    return paso;
}

Pasos pasosDelTCR(const SistemaCongruencias &sistema)
{
    return Pasos::aplazados([sistema]() -> Pasos {
        const QList<FilaDelTCR> filas = filasDelTCR(sistema);
        if (filas.isEmpty())
            return {};
        try {
            return sonCoprimos(filas) ? pasosDeSuma(filas) : pasosDeUniones(filas);
        } catch (const ErrorEjecucion &) {
            return Pasos(QList<Paso>{
                {Traduce(u"Los números son demasiado largos para mostrar los pasos."_s)}});
        }
    });
}
