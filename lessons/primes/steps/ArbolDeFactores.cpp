// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/steps/ArbolDeFactores.h"

#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal Ancho = 110, Alto = 30, Salto = 52, Lado = 70;
constexpr qsizetype MasRamas = 6;

/// What fits a box: a long number by its ends.
QString enCaja(const QString &numero)
{
    constexpr qsizetype MasCifras = 16, Extremo = 6;
    return numero.size() <= MasCifras ? numero
                                      : numero.first(Extremo) + u'…' + numero.last(Extremo);
}

QRectF cajaEn(qreal x, qreal y)
{
    return {x - Ancho / 2, y, Ancho, Alto};
}

} // namespace

Lamina arbolDeFactores(const QList<RamaDeFactores> &ramas)
{
    if (ramas.isEmpty())
        return {};
    Lamina lamina(Traduce(u"Árbol de factores: %1 se ha partido %2 veces."_s)
                      .arg(ramas.first().numero)
                      .arg(ramas.size()));
    const qsizetype desde = std::max<qsizetype>(0, ramas.size() - MasRamas);
    qreal x = 0, y = 0;
    if (desde > 0)
        lamina.texto(cajaEn(x - Lado, y - Alto), u"…"_s, {Tono::Suave});
    lamina.rectangulo(cajaEn(x, y), {}, false, enCaja(ramas[desde].numero));
    for (qsizetype i = desde; i < ramas.size(); ++i) {
        const RamaDeFactores &rama = ramas[i];
        const bool ultima = i + 1 == ramas.size();
        const Tono tono{!rama.primo ? Tono::Fallo : ultima ? Tono::Acento : Tono::Acierto};
        const bool hayResto = !rama.resto.isEmpty();
        const qreal izquierda = hayResto ? x - Lado : x;
        lamina.linea({x, y + Alto}, {izquierda, y + Salto}, {Tono::Suave});
        lamina.elipse(cajaEn(izquierda, y + Salto), tono, rama.primo, enCaja(rama.factor));
        if (hayResto) {
            lamina.linea({x, y + Alto}, {x + Lado, y + Salto}, {Tono::Suave});
            lamina.rectangulo(cajaEn(x + Lado, y + Salto), {}, false, enCaja(rama.resto));
        }
        x += Lado;
        y += Salto;
    }
    return lamina;
}
