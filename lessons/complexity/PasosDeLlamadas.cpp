// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/PasosDeLlamadas.h"

#include "lessons/complexity/ArbolDeLlamadas.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

qint64 fibonacci(int n)
{
    qint64 f = 0;
    qint64 siguiente = 1;
    for (int i = 0; i < n; ++i) {
        siguiente += f;
        f = siguiente - f;
    }
    return f;
}

qint64 llamadas(int k, bool conMemoria)
{
    if (k < 2)
        return 1;
    return conMemoria ? 2 * k - 1 : 2 * fibonacci(k + 1) - 1;
}

/// The root stands out; what the first of its calls leads to has one colour, the second another.
Lamina lamina(int k, bool conMemoria)
{
    const ArbolDeLlamadas arbol(k, conMemoria);
    Lamina lamina(Traduce(u"El árbol de F(%1): sus dos ramas son los árboles de F(%2) y F(%3)."_s)
                      .arg(k)
                      .arg(k - 1)
                      .arg(k - 2));
    const QList<Llamada> &todas = arbol.llamadas();
    const auto centro = [](const Llamada &l) { return QPointF(l.sitio.x(), l.sitio.y() * 1.5); };
    for (const Llamada &l : todas) {
        if (l.padre >= 0)
            lamina.linea(centro(todas.at(l.padre)), centro(l), {Tono::Suave});
    }
    int rama = -1;
    for (const Llamada &l : todas) {
        rama += l.padre == 0 ? 1 : 0;
        lamina.elipse(QRectF(centro(l) - QPointF(0.42, 0.42), QSizeF(0.84, 0.84)),
                      rama < 0 ? Tono{Tono::Acento} : Tono::serie(rama), true,
                      QString::number(l.n));
    }
    return lamina;
}

Paso caso(int k)
{
    return {Traduce(u"F(%1) es un caso base: una llamada, que no hace otras."_s).arg(k),
            {u"L(%1) = 1"_s.arg(k)}};
}

Paso pasoDeLlamadas(int k, bool conMemoria)
{
    if (k < 2)
        return caso(k);
    const qint64 una = llamadas(k - 1, conMemoria);
    const qint64 otra = conMemoria ? 1 : llamadas(k - 2, false);
    Paso paso{
        conMemoria && k > 2
            ? Traduce(u"F(%1) llama a F(%2), que las hace todas, y a F(%3), que ya está en la "
                      "memoria."_s)
            : Traduce(u"F(%1) llama a F(%2) y a F(%3): su llamada y las de las dos."_s)};
    paso.frase = paso.frase.arg(k).arg(k - 1).arg(k - 2);
    const QString segunda = conMemoria ? u"1"_s : u"L(%1)"_s.arg(k - 2);
    paso.formulas = {
        u"L(%1) = 1 + L(%2) + %3 = 1 + %4 + %5 = %6"_s.arg(k)
            .arg(k - 1)
            .arg(segunda)
            .arg(una)
            .arg(otra)
            .arg(1 + una + otra),
        conMemoria ? u"L(%1) = 2*%1 - 1"_s.arg(k)
                   : u"L(%1) = 2*F(%2) - 1 = 2*%3 - 1"_s.arg(k).arg(k + 1).arg(fibonacci(k + 1))};
    constexpr int MayorDibujado = 8;
    if (k <= (conMemoria ? ArbolDeLlamadas::MaximoN : MayorDibujado))
        paso.lamina = lamina(k, conMemoria);
    return paso;
}

QString comoCrecen(bool conMemoria)
{
    return conMemoria
               ? Traduce(u"Cada valor nuevo cuesta dos llamadas: crecen como n."_s)
               : Traduce(u"Las llamadas crecen como los propios números de Fibonacci, que se "
                         "multiplican por casi 1,618 cada vez."_s);
}

} // namespace

Pasos pasosDeLlamadas(int n, bool conMemoria)
{
    return Pasos(n + 1, [n, conMemoria](qsizetype i) {
        Paso paso = pasoDeLlamadas(static_cast<int>(i), conMemoria);
        if (i == n && n > 1)
            paso.regla = comoCrecen(conMemoria);
        return paso;
    });
}
