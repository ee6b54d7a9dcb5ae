// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/PasosDeEcuacion.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/euclid/EcuacionDiofantica.h"
#include "lessons/euclid/RectaDeSoluciones.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/EuclidesLargo.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// "6*100 + 10*(-50) = 100".
Formula cumplida(const RectaDeSoluciones &r, const EnteroLargo &x, const EnteroLargo &y)
{
    return {u"%1*%2 + %3*%4 = %5"_s.arg(r.a.texto(), x.trasSigno(), r.b.texto(), y.trasSigno(),
                                        r.c.texto())};
}

Paso mcd(const RectaDeSoluciones &r)
{
    return {Traduce(u"Se halla el máximo común divisor de a y b con el algoritmo de Euclides."_s),
            {Formula(u"%1(%2; %3) = %4"_s.arg(Traduce(u"mcd"_s), r.a.texto(), r.b.texto(),
                                              r.g.texto()))},
            {},
            EuclidesLargo(r.a, r.b).tabla()};
}

Paso divisible(const RectaDeSoluciones &r)
{
    const QString regla =
        Traduce(u"Todo a·x + b·y es múltiplo del máximo común divisor de a y b, y "
                "todo múltiplo suyo se puede escribir así."_s);
    if (r.haySoluciones())
        return {
            Traduce(u"El cambio es múltiplo del máximo común divisor: la ecuación tiene "
                    "soluciones enteras."_s),
            {Formula(u"%1 | %2, %2 = %1*%3"_s.arg(r.g.texto(), r.c.texto(), (r.c / r.g).texto()))},
            regla};
    return {
        Traduce(u"El cambio no es múltiplo del máximo común divisor: la ecuación no tiene "
                "soluciones, ni siquiera con números negativos."_s),
        {Formula(u"%1 !| %2, %2 mod %1 = %3"_s.arg(r.g.texto(), r.c.texto(), (r.c % r.g).texto()))},
        regla,
        {},
        dibujoDeRecta(r)};
}

Paso bezout(const RectaDeSoluciones &r)
{
    return {
        Traduce(u"El máximo común divisor se escribe con a y b."_s),
        {Formula(u"%1*%2 + %3*%4 = %5"_s.arg(r.a.texto(), r.t.trasSigno(), r.b.texto(),
                                             r.s.trasSigno(), r.g.texto()))},
        Traduce(u"Identidad de Bezout: los coeficientes salen de las divisiones, hacia atrás."_s)};
}

Paso particular(const RectaDeSoluciones &r)
{
    const EnteroLargo veces = r.c / r.g;
    return {Traduce(u"Se multiplica la identidad por %1: da una solución particular."_s)
                .arg(veces.texto()),
            {Formula(u"x_0 = %1*%2 = %3, y_0 = %4*%2 = %5"_s.arg(
                 r.t.texto(), veces.texto(), r.x0.texto(), r.s.texto(), r.y0.texto())),
             cumplida(r, r.x0, r.y0)},
            {},
            {},
            dibujoDeRecta(r)};
}

Paso general(const RectaDeSoluciones &r)
{
    return {
        Traduce(u"De una solución se pasa a las demás: a x se le suma %1 y a y se le resta %2, "
                "cuantas veces se quiera."_s)
            .arg(r.pasoX.texto(), r.pasoY.texto()),
        {Formula(u"x = %1 + k*%2, y = %3 - k*%4"_s.arg(r.x0.texto(), r.pasoX.texto(), r.y0.texto(),
                                                       r.pasoY.texto())),
         Formula(u"%1*%2 = %3*%4, %5(%2; %4) = 1"_s.arg(r.a.texto(), r.pasoX.texto(), r.b.texto(),
                                                        r.pasoY.texto(), Traduce(u"mcd"_s)))},
        Traduce(u"Lo que a·x aumenta, b·y disminuye; y no hay otras, porque esos dos números no "
                "tienen factores comunes."_s)};
}

Paso cotas(const RectaDeSoluciones &r)
{
    return {
        Traduce(u"x no es negativo desde k = %1, e y no lo es hasta k = %2."_s)
            .arg(r.kmin.texto(), r.kmax.texto()),
        {Formula(
             u"k >= ceil({-%1}/%2) = %3"_s.arg(r.x0.trasSigno(), r.pasoX.texto(), r.kmin.texto())),
         Formula(u"k <= floor({%1}/%2) = %3"_s.arg(r.y0.texto(), r.pasoY.texto(), r.kmax.texto()))},
        Traduce(u"Son los enteros k entre −x₀/(b/mcd) e y₀/(a/mcd)."_s)};
}

Paso resultado(const RectaDeSoluciones &r)
{
    if (r.kmin > r.kmax)
        return {Traduce(u"Ningún entero k cumple las dos cotas: no hay soluciones sin números "
                        "negativos, aunque con ellos sí las haya."_s),
                {Formula(u"%1 > %2"_s.arg(r.kmin.texto(), r.kmax.texto())),
                 cumplida(r, r.x(r.kmin), r.y(r.kmin)), cumplida(r, r.x(r.kmax), r.y(r.kmax))},
                {},
                {},
                dibujoDeRecta(r)};
    Paso paso{r.kmin == r.kmax
                  ? Traduce(u"Hay una sola solución sin números negativos."_s)
                  : Traduce(u"Hay %1 soluciones sin números negativos; la primera y la última:"_s)
                        .arg(r.cuantas().texto()),
              {Formula(u"%1 - %2 + 1 = %3"_s.arg(r.kmax.texto(), r.kmin.trasSigno(),
                                                 r.cuantas().texto())),
               cumplida(r, r.x(r.kmin), r.y(r.kmin))}};
    if (r.kmin < r.kmax)
        paso.formulas << cumplida(r, r.x(r.kmax), r.y(r.kmax));
    paso.lamina = dibujoDeRecta(r);
    return paso;
}

/// Whether the list, whose bounds of k are computed in double precision, holds just these.
bool coincideLaLista(const RectaDeSoluciones &r)
{
    const auto moneda = [](const EnteroLargo &n) {
        return Moneda::deEntero(n.texto().toLongLong());
    };
    try {
        const auto lista =
            EcuacionDiofantica().resuelve(moneda(r.a), moneda(r.b), moneda(r.c)).lista;
        if (lista.isEmpty())
            return r.kmin > r.kmax;
        return r.cuantas() == lista.constLast().numero && r.x(r.kmin) == lista.constFirst().x;
    } catch (const ErrorEjecucion &) {
        return false;
    }
}

Pasos hechos(const RectaDeSoluciones &r)
{
    if (!r.haySoluciones())
        return Pasos(2, [r](qsizetype i) { return i == 0 ? mcd(r) : divisible(r); });
    const Pasos exactos(7, [r](qsizetype i) {
        static constexpr std::array Cada = {mcd,     divisible, bezout,   particular,
                                            general, cotas,     resultado};
        return Cada.at(static_cast<std::size_t>(i))(r);
    });
    if (coincideLaLista(r))
        return exactos;
    return Pasos::seguidos(
        {exactos,
         Pasos(QList<Paso>{{Traduce(u"La lista de la herramienta se calcula en coma flotante y con "
                                    "k de 32 bits: para números tan grandes no llega a coincidir "
                                    "con estas cotas, que son exactas."_s)}})});
}

} // namespace

Pasos pasosDeEcuacion(Moneda a, Moneda b, Moneda c)
{
    const Moneda cero;
    if (!(a > cero && b > cero && c >= cero))
        return {};
    return Pasos::aplazados([a, b, c] { return hechos({a.entero(), b.entero(), c.entero()}); });
}
