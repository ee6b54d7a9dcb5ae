// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/PasosDeEuclides.h"

#include "lessons/euclid/RectanguloDeEuclides.h"
#include "shell/core/ModGlobal.h"

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
template <typename Numero>
QString trasSigno(Numero n)
{
    const QString numero = cifras(n);
    return numero.startsWith(u'-') ? u"("_s + numero + u')' : numero;
}

Formula mismoMcd(Moneda a, Moneda b, Moneda c, Moneda d)
{
    const QString mcd = Traduce(u"mcd"_s);
    return {u"%1(%2; %3) = %1(%4; %5)"_s.arg(mcd, cifras(a), cifras(b), cifras(c), cifras(d))};
}

Moneda absoluto(Moneda n)
{
    return n < Moneda() ? -n : n;
}

/// How the two coefficients of a row come from those of the two rows above.
QList<Formula> coeficientes(const TablaEuclides &tabla, qsizetype i)
{
    const auto &filas = tabla.divisiones();
    const auto uno = [&](const QString &rotulo, std::int64_t DivisionEuclides::*coef,
                         std::int64_t antes, std::int64_t ultimo) {
        const std::int64_t dosAntes = i > 1 ? filas[i - 2].*coef : i == 1 ? ultimo : antes;
        const std::int64_t unoAntes = i > 0 ? filas[i - 1].*coef : ultimo;
        return Formula(
            u"\"%1\" = %2 - %3*%4 = %5"_s.arg(rotulo, cifras(dosAntes), cifras(filas[i].cociente),
                                              trasSigno(unoAntes), cifras(filas[i].*coef)));
    };
    return {uno(Traduce(u"Coef. 1"_s), &DivisionEuclides::coef1, 1, 0),
            uno(Traduce(u"Coef. 2"_s), &DivisionEuclides::coef2, 0, 1)};
}

QString reglaDeDivision(const TablaEuclides &tabla, qsizetype i)
{
    if (tabla.divisiones()[i].resto < Moneda())
        return Traduce(
            u"El cociente se toma uno mayor: así el resto es negativo, pero menor en valor "
            "absoluto, y con ese se sigue."_s);
    if (i == 0)
        return Traduce(u"Lo que divide al dividendo y al divisor divide también al resto, y lo que "
                       "divide al divisor y al resto, al dividendo: el mcd no cambia."_s);
    if (i == 1)
        return Traduce(
            u"Los coeficientes son los de dos filas antes menos el cociente por los de la "
            "fila anterior; se empieza por 1 y 0, y por 0 y 1."_s);
    return {};
}

Paso division(const TablaEuclides &tabla, qsizetype i)
{
    const DivisionEuclides &d = tabla.divisiones()[i];
    Paso paso{Traduce(u"Se divide %1 entre %2: cociente %3, resto %4."_s)
                  .arg(cifras(d.dividendo), cifras(d.divisor), cifras(d.cociente), cifras(d.resto)),
              {Formula(u"%1 = %2*%3 + %4"_s.arg(cifras(d.dividendo), cifras(d.cociente),
                                                trasSigno(d.divisor), trasSigno(d.resto))),
               mismoMcd(d.dividendo, d.divisor, d.divisor, absoluto(d.resto))},
              reglaDeDivision(tabla, i)};
    paso.formulas += coeficientes(tabla, i);
    if (tabla.algoritmo() == AlgoritmoEuclides::Estandar)
        paso.formulas << Formula(u"%1 = %2*%3 + %4*%5"_s.arg(
            cifras(d.resto), cifras(d.coef1), trasSigno(tabla.dividendo()), trasSigno(d.coef2),
            trasSigno(tabla.divisor())));
    paso.lamina = rectanguloDeEuclides(tabla, i);
    return paso;
}

Paso conclusion(const TablaEuclides &tabla)
{
    Paso paso{Traduce(u"El resto es 0: el último divisor, %1, es el máximo común divisor."_s)
                  .arg(cifras(tabla.mcd())),
              {Formula(u"%1(%2; %3) = %4"_s.arg(Traduce(u"mcd"_s), cifras(tabla.dividendo()),
                                                cifras(tabla.divisor()), cifras(tabla.mcd())))},
              Traduce(u"En el dibujo, es el lado de los cuadrados más pequeños, con los que se "
                      "cubriría el rectángulo entero."_s)};
    paso.lamina = rectanguloDeEuclides(tabla, tabla.divisiones().size() - 1);
    return paso;
}

/// The remainder of a division by itself, "240 - 5*46", as a number that is not negative.
QString despejado(const DivisionEuclides &d)
{
    const QString producto = cifras(d.cociente) + u'*' + trasSigno(d.divisor);
    return d.resto < Moneda() ? producto + u" - "_s + trasSigno(d.dividendo)
                              : cifras(d.dividendo) + u" - "_s + producto;
}

QString escrita(const Combinacion &c, const DivisionEuclides &d)
{
    return u"%1*%2 + %3*%4"_s.arg(cifras(c.x), trasSigno(d.dividendo), trasSigno(c.y),
                                  trasSigno(d.divisor));
}

Paso despeje(const TablaEuclides &tabla, const Combinacion &c)
{
    const DivisionEuclides &d = tabla.divisiones()[*tabla.filaDelMcd()];
    return {
        Traduce(u"Hacia atrás: se despeja %1 de la división que lo dejó como resto."_s)
            .arg(cifras(tabla.mcd())),
        {Formula(u"%1 = %2 = %3"_s.arg(cifras(tabla.mcd()), despejado(d), escrita(c, d)))},
        tabla.algoritmo() == AlgoritmoEuclides::Estandar
            ? QString()
            : Traduce(u"Aquí se cuenta con los signos de los restos; los coeficientes de la tabla "
                      "no lo hacen, y por eso no dan la identidad de Bezout."_s)};
}

/// Row i + 1 is known; its divisor is put in as the remainder of row i.
Paso sustitucion(const TablaEuclides &tabla, const QList<Combinacion> &lineas, qsizetype i)
{
    const DivisionEuclides &d = tabla.divisiones()[i];
    const Combinacion &sabida = lineas[i + 1];
    const QString resto = cifras(absoluto(d.resto));
    return {Traduce(u"Se sustituye %1 por %2 y se agrupa."_s)
                .arg(resto, despejado(d).replace(u"*"_s, u" · "_s).replace(u" - "_s, u" − "_s)),
            {Formula(u"%1 = %2*%3 + %4*(%5) = %6"_s.arg(cifras(tabla.mcd()), cifras(sabida.x),
                                                        trasSigno(d.divisor), trasSigno(sabida.y),
                                                        despejado(d), escrita(lineas[i], d)))}};
}

Paso bezout(const TablaEuclides &tabla, const QList<Combinacion> &lineas)
{
    const Combinacion c = lineas.isEmpty() ? Combinacion{0, 1} : lineas.constFirst();
    return {Traduce(u"El máximo común divisor, escrito con los dos números."_s),
            {Formula(u"%1*%2 + %3*%4 = %5"_s.arg(cifras(c.x), trasSigno(tabla.dividendo()),
                                                 trasSigno(c.y), trasSigno(tabla.divisor()),
                                                 cifras(tabla.mcd())))},
            Traduce(u"Identidad de Bezout."_s)};
}

} // namespace

QList<Combinacion> sustitucionHaciaAtras(const TablaEuclides &tabla)
{
    const auto fila = tabla.filaDelMcd();
    QList<Combinacion> lineas;
    // Before the first substitution the remainder itself: 0 times the divisor and once it.
    Combinacion sabida{0, 1};
    for (qsizetype i = fila.value_or(-1); i >= 0; --i) {
        const DivisionEuclides &d = tabla.divisiones()[i];
        const std::int64_t y = d.resto < Moneda() ? -sabida.y : sabida.y;
        sabida = {y, sabida.x - y * d.cociente.entero()};
        lineas.prepend(sabida);
    }
    return lineas;
}

Pasos pasosDeEuclides(const TablaEuclides &tabla)
{
    const qsizetype divisiones = tabla.divisiones().size();
    if (divisiones == 0)
        return {};
    const QList<Combinacion> lineas = sustitucionHaciaAtras(tabla);
    const qsizetype cuantos = divisiones + 1 + lineas.size() + 1;
    return Pasos(cuantos, [tabla, lineas, divisiones, cuantos](qsizetype i) {
        if (i < divisiones)
            return division(tabla, i);
        if (i == divisiones)
            return conclusion(tabla);
        if (i + 1 == cuantos)
            return bezout(tabla, lineas);
        const qsizetype linea = lineas.size() - (i - divisiones);
        return linea + 1 == lineas.size() ? despeje(tabla, lineas[linea])
                                          : sustitucion(tabla, lineas, linea);
    });
}
