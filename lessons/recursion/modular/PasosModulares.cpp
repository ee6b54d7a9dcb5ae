// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/PasosModulares.h"

#include "lessons/recursion/modular/DibujoDeEstados.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct Datos
{
    DefinicionRecurrente definicion;
    SucesionModular sucesion;
    std::optional<PeriodoModular> periodo;
    DibujoDeEstados estados;

    std::int64_t modulo() const { return sucesion.modulo(); }
    std::int64_t reducido(Moneda valor) const
    {
        return ModCy(valor, Moneda::deEntero(modulo())).entero();
    }
    /// The index of the last value that is computed before it is seen that a pair comes back.
    int ultimo() const
    {
        return periodo ? periodo->inicio + periodo->longitud + 1 : SucesionModular::NumValores;
    }
};

Paso reduccion(const Datos &datos)
{
    const auto congruencia = [&](const QString &nombre, Moneda valor) {
        return Formula(u"%1 = %2 == %3 (mod %4)"_s.arg(nombre)
                           .arg(valor.entero())
                           .arg(datos.reducido(valor))
                           .arg(datos.modulo()));
    };
    const DefinicionRecurrente &d = datos.definicion;
    Paso paso{Traduce(u"Los cuatro números de la función se cambian por sus restos módulo %1."_s)
                  .arg(datos.modulo()),
              {congruencia(u"α"_s, d.alfa), congruencia(u"β"_s, d.beta),
               congruencia(u"f(1)"_s, d.f1), congruencia(u"f(2)"_s, d.f2)},
              Traduce(u"El resto de una suma o de un producto depende solo de los restos."_s)};
    paso.lamina = datos.estados.lamina(1);
    return paso;
}

Paso calculoDe(const Datos &datos, int k)
{
    const SucesionModular &f = datos.sucesion;
    Paso paso{Traduce(u"f(%1) sale de los dos anteriores; la pareja (%2, %3) es el estado %4."_s)
                  .arg(k)
                  .arg(f.valor(k - 1))
                  .arg(f.valor(k))
                  .arg(k - 1),
              {u"f(%1) = (%2*%3 + %4*%5) mod %6 = %7"_s.arg(k)
                   .arg(datos.reducido(datos.definicion.alfa))
                   .arg(f.valor(k - 1))
                   .arg(datos.reducido(datos.definicion.beta))
                   .arg(f.valor(k - 2))
                   .arg(datos.modulo())
                   .arg(f.valor(k))}};
    paso.lamina = datos.estados.lamina(k - 1);
    return paso;
}

/// The two places of a pair among the values.
TablaDePaso tablaDePareja(const SucesionModular &f, const PeriodoModular &periodo)
{
    const int i = periodo.inicio + periodo.longitud;
    TablaDePaso tabla{{u"n"_s, u"f(n)"_s, u"f(n + 1)"_s}, {}};
    const auto agrega = [&](int n) {
        tabla.filas << QStringList{QString::number(n), QString::number(f.valor(n)),
                                   QString::number(f.valor(n + 1))};
    };
    agrega(periodo.inicio);
    if (periodo.longitud > 1)
        tabla.filas << QStringList{u"…"_s, u"…"_s, u"…"_s};
    agrega(i);
    tabla.marcadas = {0, tabla.filas.size() - 1};
    return tabla;
}

Paso regreso(const Datos &datos)
{
    const auto [inicio, longitud] = *datos.periodo;
    const int i = inicio + longitud;
    const SucesionModular &f = datos.sucesion;
    Paso paso{
        Traduce(u"La pareja (%1, %2) es la primera que se repite: estaba en los lugares %3 y %4, "
                "y vuelve en %5 y %6. El periodo empieza en %3; su longitud es %7."_s)
            .arg(f.valor(i))
            .arg(f.valor(i + 1))
            .arg(inicio)
            .arg(inicio + 1)
            .arg(i)
            .arg(i + 1)
            .arg(longitud),
        {u"f(%1) = f(%2) = %3"_s.arg(i).arg(inicio).arg(f.valor(i)),
         u"f(%1) = f(%2) = %3"_s.arg(i + 1).arg(inicio + 1).arg(f.valor(i + 1)),
         u"%1 - %2 = %3"_s.arg(i).arg(inicio).arg(longitud),
         u"f(n + %1) = f(n), n >= %2"_s.arg(longitud).arg(inicio)},
        Traduce(u"Dos valores seguidos deciden todos los que vienen detrás."_s),
        tablaDePareja(f, *datos.periodo)};
    paso.lamina = datos.estados.lamina(i);
    return paso;
}

Paso sinRegreso(const Datos &datos)
{
    constexpr int Parejas = SucesionModular::NumValores - 1;
    return {
        Traduce(u"Ninguna de las %1 primeras parejas se repite, pero alguna tiene que hacerlo: con "
                "módulo %2 hay %3 parejas distintas."_s)
            .arg(Parejas)
            .arg(datos.modulo())
            .arg(datos.modulo() * datos.modulo()),
        {u"%1 <= %2^2 = %3"_s.arg(Parejas)
             .arg(datos.modulo())
             .arg(datos.modulo() * datos.modulo())},
        Traduce(u"Principio del palomar: más sucesos que casos, y alguno se repite."_s)};
}

} // namespace

Pasos pasosDeSucesion(const DefinicionRecurrente &definicion, const SucesionModular &sucesion)
{
    if (sucesion.modulo() == 0)
        return {};
    const auto datos = std::make_shared<const Datos>(
        Datos{definicion, sucesion, sucesion.periodo(), DibujoDeEstados(sucesion)});
    // The reduction, the values from the third on, and what comes of them.
    const qsizetype cuantos = datos->ultimo();
    return Pasos(cuantos,
                 [datos, cuantos](qsizetype i) {
                     if (i == 0)
                         return reduccion(*datos);
                     if (i < cuantos - 1)
                         return calculoDe(*datos, static_cast<int>(i) + 2);
                     return datos->periodo ? regreso(*datos) : sinRegreso(*datos);
                 })
        .comoPelicula();
}
