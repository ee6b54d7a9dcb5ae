// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/PasosDeInverso.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/steps/EuclidesLargo.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// a reduced to 0 … n − 1, and Euclid's algorithm on n and that.
struct Busqueda
{
    EnteroLargo a, n, reducido;
    EuclidesLargo euclides;

    Busqueda(const EnteroLargo &elemento, const EnteroLargo &modulo)
        : a(elemento), n(modulo), reducido(elemento % modulo), euclides(modulo, reducido)
    {
    }
    bool reduce() const { return a != reducido; }
    bool hayInverso() const { return euclides.mcd() == 1; }
    qsizetype divisiones() const { return euclides.divisiones().size(); }
};

Paso reduccion(const Busqueda &b)
{
    return {Traduce(u"Primero se toma el resto de a al dividirlo entre n."_s),
            {Formula(u"%1 == %2 (mod %3)"_s.arg(b.a.texto(), b.reducido.texto(), b.n.texto()))},
            Traduce(u"Números congruentes tienen los mismos inversos."_s)};
}

/// What the coefficients are, told where they begin.
QString reglaDelCoeficiente(qsizetype i)
{
    return i > 0 ? QString()
                 : Traduce(
                       u"Cada coeficiente es el de dos filas antes menos el cociente por el de la "
                       "fila anterior; se empieza por 0 y 1. Así cada resto es congruente con su "
                       "coeficiente por a."_s);
}

Paso division(const Busqueda &b, qsizetype i)
{
    const auto &filas = b.euclides.divisiones();
    const DivisionLarga &d = filas[i];
    const EnteroLargo antes = i > 1 ? filas[i - 2].coeficiente : EnteroLargo(i);
    const EnteroLargo ultimo = i > 0 ? filas[i - 1].coeficiente : EnteroLargo(1);
    return {Traduce(u"Se divide %1 entre %2."_s).arg(d.dividendo.texto(), d.divisor.texto()),
            {Formula(u"%1 = %2*%3 + %4"_s.arg(d.dividendo.texto(), d.cociente.texto(),
                                              d.divisor.texto(), d.resto.texto())),
             Formula(u"\"%1\" = %2 - %3*%4 = %5"_s.arg(Traduce(u"Coeficiente"_s), antes.texto(),
                                                       d.cociente.texto(), ultimo.trasSigno(),
                                                       d.coeficiente.texto())),
             Formula(u"%1 == %2*%3 (mod %4)"_s.arg(d.resto.texto(), d.coeficiente.trasSigno(),
                                                   b.reducido.texto(), b.n.texto()))},
            reglaDelCoeficiente(i)};
}

Paso sinInverso(const Busqueda &b)
{
    const QString d = b.euclides.mcd().texto();
    return {
        Traduce(u"El último resto que no es 0 es %1: no hay inverso."_s).arg(d),
        {Formula(u"%1(%2; %3) = %4"_s.arg(Traduce(u"mcd"_s), b.n.texto(), b.reducido.texto(), d)),
         Formula(u"%1 | %2, %1 | %3, %1 !| 1"_s.arg(d, b.reducido.texto(), b.n.texto()))},
        Traduce(u"Lo que divide a los dos números divide también a cualquier resto de a·x al "
                "dividirlo entre n, y al 1 no lo divide."_s),
        b.euclides.tabla()};
}

Paso inverso(const Busqueda &b)
{
    const EnteroLargo coeficiente = b.euclides.coeficiente();
    const EnteroLargo x = coeficiente % b.n;
    Paso paso{Traduce(u"El último resto que no es 0 es 1, y su coeficiente es el inverso: %1."_s)
                  .arg(x.texto()),
              {},
              Traduce(u"El inverso se da como resto, de 0 a n − 1."_s),
              b.euclides.tabla()};
    if (coeficiente != x)
        paso.formulas << Formula(
            u"%1 == %2 (mod %3)"_s.arg(coeficiente.texto(), x.texto(), b.n.texto()));
    paso.formulas << Formula(
        u"%1*%2 == 1 (mod %3)"_s.arg(b.reducido.texto(), x.texto(), b.n.texto()));
    return paso;
}

} // namespace

Pasos pasosDeInverso(const QString &a, const QString &n)
{
    return Pasos::aplazados([a, n] {
        const auto busqueda = std::make_shared<const Busqueda>(EnteroLargo(a), EnteroLargo(n));
        const qsizetype antes = busqueda->reduce() ? 1 : 0;
        return Pasos(antes + busqueda->divisiones() + 1, [busqueda, antes](qsizetype i) {
            if (i < antes)
                return reduccion(*busqueda);
            if (i - antes < busqueda->divisiones())
                return division(*busqueda, i - antes);
            return busqueda->hayInverso() ? inverso(*busqueda) : sinInverso(*busqueda);
        });
    });
}
