// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/PasosDeCapicua.h"

#include "lessons/recursion/functions/Capicua.h"
#include "lessons/recursion/functions/SumaEnColumnas.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// More digits are too small to read.
constexpr qsizetype MasDibujadas = 26;

/// The sum as it is written on paper: carries, number, reverse, sum, each digit of which is
/// compared with the one opposite to it.
Lamina lamina(const SumaEnColumnas &suma, const QString &total)
{
    const QList<SumaEnColumnas::Columna> &columnas = suma.columnas();
    if (total.size() > MasDibujadas)
        return {};
    Lamina lamina(
        Traduce(u"La suma en columnas, con sus acarreos encima; en el resultado, las cifras "
                "iguales y distintas de la opuesta."_s));
    const auto x = [&](qsizetype columna) {
        return static_cast<qreal>(total.size() - 1 - columna);
    };
    const auto cifra = [&](qsizetype columna, qreal y, int valor, Tono tono) {
        lamina.texto(QRectF(x(columna), y, 1, 0.9), QString::number(valor), tono);
    };
    for (qsizetype i = 0; i < columnas.size(); ++i) {
        if (columnas[i].conAcarreo())
            lamina.texto(QRectF(x(i + 1) + 0.2, 0.2, 0.6, 0.6), u"1"_s, {Tono::Acento});
        cifra(i, 1, columnas[i].cifra, {});
        cifra(i, 2, columnas[i].pareja, {});
    }
    lamina.linea({0, 3.05}, {static_cast<qreal>(total.size()), 3.05});
    for (qsizetype i = 0; i < total.size(); ++i) {
        const bool igual = total[i] == total[total.size() - 1 - i];
        lamina.rectangulo(QRectF(static_cast<qreal>(i) + 0.04, 3.2, 0.92, 0.92),
                          igual ? Tono{Tono::Acierto} : Tono{Tono::Fallo}, true, QString(total[i]));
    }
    return lamina;
}

/// What the carries do.
QString explicacion(const SumaEnColumnas &suma)
{
    if (suma.acarreos() == 0)
        return Traduce(
            u"Sin acarreos, cada columna suma lo mismo que la opuesta: sale un capicúa."_s);
    if (const auto columna = suma.desigual())
        return Traduce(
                   u"Las columnas %1 y %2, contadas desde las unidades, suman las mismas cifras, "
                   "pero a una le llega un acarreo y a la otra no."_s)
            .arg(*columna + 1)
            .arg(suma.opuesta(*columna) + 1);
    return Traduce(u"A columnas opuestas les llega el mismo acarreo; el último añade una cifra "
                   "delante."_s);
}

Paso pasoDeSuma(const QString &numero, const QString &total)
{
    const SumaEnColumnas suma(numero);
    const QString inverso = Inverso(numero);
    Paso paso{Traduce(u"%1 más su inverso, %2, son %3. Acarreos: %4."_s)
                  .arg(numero, inverso, total)
                  .arg(suma.acarreos()),
              {u"%1 + %2 = %3"_s.arg(numero, inverso, total)},
              explicacion(suma)};
    if (const auto columna = suma.desigual()) {
        for (const qsizetype i : {*columna, suma.opuesta(*columna)}) {
            const SumaEnColumnas::Columna &c = suma.columnas()[i];
            paso.formulas << Formula(
                u"%1 + %2 + %3 = %4"_s.arg(c.cifra).arg(c.pareja).arg(c.llega).arg(c.suma()));
        }
    }
    paso.lamina = lamina(suma, total);
    return paso;
}

Paso pasoFinal(const QString &numero, bool hallado)
{
    const QString inverso = Inverso(numero);
    if (!hallado)
        return {Traduce(u"%1 todavía no es capicúa: leído al revés es %2."_s).arg(numero, inverso),
                {u"%1 %2 %3"_s.arg(numero, numero == inverso ? u"="_s : u"!="_s, inverso)}};
    return {Traduce(u"%1 es capicúa: se lee igual al revés."_s).arg(numero),
            {u"%1 = %2"_s.arg(numero, inverso)}};
}

bool soloCifras(const QString &numero)
{
    return std::all_of(numero.begin(), numero.end(),
                       [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

Pasos pasosDeCapicua(const QStringList &todos, bool hallado)
{
    const auto fin = std::find_if_not(todos.begin(), todos.end(), soloCifras);
    const QStringList numeros = todos.first(fin - todos.begin());
    return Pasos(numeros.size(), [numeros, hallado](qsizetype i) {
        return i + 1 < numeros.size() ? pasoDeSuma(numeros[i], numeros[i + 1])
                                      : pasoFinal(numeros[i], hallado);
    });
}
