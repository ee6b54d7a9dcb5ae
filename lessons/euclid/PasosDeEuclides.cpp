// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/PasosDeEuclides.h"

#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString cifras(std::int64_t n)
{
    return QString::number(n);
}

QString cifras(Moneda n)
{
    return cifras(n.entero());
}

/// A negative number between brackets, where it stands behind a sign.
QString trasSigno(const QString &numero)
{
    return numero.startsWith(u'-') ? u"("_s + numero + u')' : numero;
}

/// Squares of one division, side by side along the longer side of what is left.
void agregaCuadrados(Lamina &lamina, QRectF &hueco, qint64 cociente, int serie, const QString &lado)
{
    constexpr qint64 MasCuadrados = 40; // more of them are a hatching
    const qint64 cuantos = std::min(cociente, MasCuadrados);
    const bool apaisado = hueco.width() >= hueco.height();
    const qreal l = apaisado ? hueco.height() : hueco.width();
    for (qint64 i = 0; i < cuantos; ++i) {
        const QPointF esquina =
            hueco.topLeft() + (apaisado ? QPointF(l, 0) : QPointF(0, l)) * static_cast<qreal>(i);
        lamina.rectangulo(QRectF(esquina, QSizeF(l, l)), Tono::serie(serie), true,
                          cuantos <= 12 ? lado : QString());
    }
    const qreal cubierto = l * static_cast<qreal>(cociente);
    hueco = apaisado ? hueco.adjusted(cubierto, 0, 0, 0) : hueco.adjusted(0, cubierto, 0, 0);
}

/// The rectangle of the two numbers with the squares of the divisions up to `hasta`.
Lamina rectangulo(const TablaEuclides &tabla, qsizetype hasta)
{
    const auto &divisiones = tabla.divisiones();
    const auto a = static_cast<qreal>(tabla.dividendo().entero());
    const auto b = static_cast<qreal>(tabla.divisor().entero());
    if (a <= 0 || b <= 0 || tabla.algoritmo() != AlgoritmoEuclides::Estandar)
        return {};
    Lamina lamina(
        Traduce(u"Un rectángulo de %1 por %2, cortado en los cuadrados de las primeras %3 "
                "divisiones."_s)
            .arg(cifras(tabla.dividendo()), cifras(tabla.divisor()))
            .arg(hasta + 1));
    QRectF hueco(0, 0, a, b);
    for (qsizetype i = 0; i <= hasta; ++i) {
        const qint64 cociente = divisiones[i].cociente.entero();
        if (cociente > 0 && std::min(hueco.width(), hueco.height()) > std::max(a, b) / 2000)
            agregaCuadrados(lamina, hueco, cociente, static_cast<int>(i),
                            cifras(divisiones[i].divisor));
    }
    lamina.rectangulo(QRectF(0, 0, a, b), {Tono::Tinta});
    return lamina;
}

} // namespace

Pasos pasosDeEuclides(const TablaEuclides &tabla)
{
    return Pasos(tabla.divisiones().size(), [tabla](qsizetype i) {
        const DivisionEuclides &d = tabla.divisiones()[i];
        Paso paso{
            Traduce(u"Se divide %1 entre %2: cociente %3, resto %4."_s)
                .arg(cifras(d.dividendo), cifras(d.divisor), cifras(d.cociente), cifras(d.resto)),
            {Formula(u"%1 = %2*%3 + %4"_s.arg(cifras(d.dividendo), cifras(d.divisor),
                                              trasSigno(cifras(d.cociente)),
                                              trasSigno(cifras(d.resto))))}};
        paso.lamina = rectangulo(tabla, i);
        return paso;
    });
}
