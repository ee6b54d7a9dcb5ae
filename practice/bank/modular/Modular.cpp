// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/modular/Modular.h"

#include "practice/bank/modular/SucesionDePractica.h"
#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Terminos = 8;

Fallo juzgaTerminos(const RespuestaLeida &respuesta, const SucesionDePractica &s)
{
    const auto son = [&](const SucesionDePractica &otra) {
        return respuesta.numeros.join(u' ') == listaDe(otra.valores(Terminos), u" "_s);
    };
    if (son(s))
        return correcto();
    if (respuesta.numeros.size() != Terminos)
        return Fallo::mal(Traduce(u"Se piden %1 términos, con los dos primeros."_s).arg(Terminos),
                          u"cuantos"_s);
    if (son({s.beta, s.alfa, s.f1, s.f2, s.m}))
        return Fallo::mal(Traduce(u"Ha cambiado un coeficiente por el otro."_s), u"cambiados"_s);
    if (son({s.alfa, -s.beta, s.f1, s.f2, s.m}))
        return Fallo::mal(Traduce(u"El segundo coeficiente lleva otro signo."_s), u"signo"_s);
    bool congruentes = true;
    const QList<qint64> valores = s.valores(Terminos);
    for (int i = 0; i < Terminos; ++i) {
        congruentes = congruentes && restoDe(respuesta.numeros[i], s.m) == valores[i];
    }
    if (congruentes)
        return Fallo::mal(
            Traduce(u"Son congruentes con ellos, pero los restos están entre 0 y %1."_s)
                .arg(s.m - 1),
            u"sin-reducir"_s);
    return Fallo::mal(Traduce(u"Algún término no es el que sale de los dos anteriores."_s));
}

/// The first terms, one by one.
Pasos pasosDeTerminos(const SucesionDePractica &s)
{
    const QList<qint64> f = s.valores(Terminos);
    QList<Paso> pasos;
    for (int i = 2; i < Terminos; ++i)
        pasos << Paso{Traduce(u"f(%1) sale de f(%2) y f(%3)."_s).arg(i + 1).arg(i).arg(i - 1),
                      {u"f(%1) = %2*%3 + (%4)*%5 == %6 (mod %7)"_s.arg(i + 1)
                           .arg(s.alfa)
                           .arg(f[i - 1])
                           .arg(s.beta)
                           .arg(f[i - 2])
                           .arg(f[i])
                           .arg(s.m)}};
    return Pasos(pasos);
}

Ejercicio siguientes(int nivel, Sorteo &sorteo)
{
    const qint64 m = sorteo.entre(3 + 4 * nivel, 4 + 8 * nivel);
    SucesionDePractica s{sorteo.entre(2, 3 * nivel), sorteo.entre(2, 3 * nivel),
                         sorteo.entre(1, m - 1), sorteo.entre(1, m - 1), m};
    if (nivel > 1 && sorteo.moneda())
        s.beta = -s.beta;
    const QList<qint64> f = s.valores(Terminos);
    return {.enunciado = Traduce(u"Escriba los %1 primeros términos de %2."_s)
                             .arg(QString::number(Terminos), s.texto()),
            .forma = {FormaDeRespuesta::Lista},
            .ejemplo = Traduce(u"Una lista: 1, 1, 2, 3, 5, 1, 6, 0"_s),
            .esperada = listaDe(f),
            .juzga = [s](const RespuestaLeida &r) { return juzgaTerminos(r, s); },
            .pistas = {Traduce(u"Reduzca en cada paso: los restos bastan para seguir."_s),
                       Traduce(u"f(3) es el resto de %1 · %2 + (%3) · %4, que es %5."_s)
                           .arg(s.alfa)
                           .arg(s.f2)
                           .arg(s.beta)
                           .arg(s.f1)
                           .arg(f[2])},
            .solucion = [s] { return pasosDeTerminos(s); }};
}

/// The sequences of small moduli of which the period is worth looking for: so long, and it begins
/// at the first place or not.
QList<SucesionDePractica> sucesionesCon(qint64 m, bool puras)
{
    QList<SucesionDePractica> halladas;
    for (qint64 beta = 1; beta < m; ++beta) {
        if ((std::gcd(beta, m) == 1) != puras)
            continue;
        for (qint64 alfa = 1; alfa < m; ++alfa) {
            for (qint64 f2 = 1; f2 < m; ++f2) {
                const SucesionDePractica s{alfa, beta, 1, f2, m};
                const auto p = s.periodo();
                if (p && p->longitud > 3 && p->longitud < 21 && (p->inicio == 1) == puras)
                    halladas << s;
            }
        }
    }
    return halladas;
}

Juicio juicioDeLongitud(const SucesionDePractica &s, const PeriodoModular &p)
{
    return [s, p](const RespuestaLeida &respuesta) {
        const qint64 dado = numeroDe(respuesta);
        if (dado == p.longitud)
            return correcto();
        if (dado > 0 && dado % p.longitud == 0)
            return Fallo::mal(Traduce(u"Así también se repite, pero el periodo es el menor."_s),
                              u"multiplo"_s);
        if (dado == s.m)
            return Fallo::mal(Traduce(u"Ese es el módulo."_s), u"modulo"_s);
        const QList<qint64> f = s.valores(p.longitud + 2);
        if (dado > 0 && dado < p.longitud && f[dado] == f[0])
            return Fallo::mal(Traduce(u"Ahí vuelve un valor suelto: tiene que volver la pareja."_s),
                              u"valor-suelto"_s);
        return Fallo::mal(
            Traduce(u"Busque la primera pareja de valores seguidos que se repite."_s));
    };
}

Ejercicio periodoPuro(Sorteo &sorteo)
{
    static const QList<SucesionDePractica> todas = sucesionesCon(4, true) + sucesionesCon(5, true) +
                                                   sucesionesCon(6, true) + sucesionesCon(7, true);
    const SucesionDePractica s = sorteo.de(todas);
    const PeriodoModular p = *s.periodo();
    return {
        .enunciado = Traduce(u"¿De cuánto es el periodo de %1?"_s).arg(s.texto()),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(p.longitud),
        .juzga = juicioDeLongitud(s, p),
        .pistas = {Traduce(u"Escriba términos hasta que vuelva a salir una pareja seguida."_s),
                   Traduce(u"Los primeros son %1…"_s).arg(listaDe(s.valores(qMin(p.longitud, 6))))},
        .solucion = [s] { return s.pasos(); }};
}

int periodoDePisano(qint64 m)
{
    return SucesionDePractica{1, 1, 1, 1, m}.periodo()->longitud;
}

Ejercicio periodoDeProducto(Sorteo &sorteo)
{
    static const QList<std::pair<qint64, qint64>> pares = {
        {2, 3}, {2, 5}, {2, 7}, {3, 4}, {3, 5}, {3, 7}, {4, 5}, {4, 7},  {5, 6},
        {5, 7}, {3, 8}, {5, 8}, {7, 8}, {5, 9}, {7, 9}, {4, 9}, {5, 11}, {7, 11}};
    const auto dos = sorteo.de(pares);
    const qint64 m = dos.first * dos.second;
    const int p = periodoDePisano(dos.first);
    const int r = periodoDePisano(dos.second);
    const qint64 periodo = std::lcm(p, r);
    return {
        .enunciado = Traduce(u"El periodo de los números de Fibonacci módulo %1 es %2, y módulo "
                             "%3, %4. ¿Cuál es módulo %5?"_s)
                         .arg(dos.first)
                         .arg(p)
                         .arg(dos.second)
                         .arg(r)
                         .arg(m),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(periodo),
        .juzga = juicioDe(
            QString::number(periodo),
            {{QString::number(p * r),
              Traduce(u"Así también se repite, pero el periodo es el menor."_s), u"multiplo"_s},
             {QString::number(std::gcd(p, r)),
              Traduce(u"Ese es el mcd: tiene que caber un número entero de vueltas de cada uno."_s),
              u"mcd"_s},
             {QString::number(p + r), Traduce(u"Los periodos no se suman."_s), u"los-suma"_s},
             {QString::number(m), Traduce(u"Ese es el módulo."_s), u"modulo"_s}},
            Traduce(u"Tiene que ser un múltiplo de los dos periodos, y el menor."_s)),
        .pistas = {Traduce(u"Los dos módulos son primos entre sí: se repite cuando lo hace con "
                           "los dos."_s),
                   Traduce(u"Es el menor múltiplo común de %1 y %2."_s).arg(p).arg(r)},
        .solucion = [=] {
            return Pasos(QList<Paso>{
                {Traduce(u"Por el teorema chino del resto, se repite módulo %1 cuando lo hace "
                         "módulo %2 y módulo %3."_s)
                     .arg(m)
                     .arg(dos.first)
                     .arg(dos.second),
                 {Traduce(u"mcm"_s) + u"(%1; %2) = %3"_s.arg(p).arg(r).arg(periodo)}}});
        }};
}

Ejercicio entradaYPeriodo(Sorteo &sorteo)
{
    static const QList<SucesionDePractica> todas =
        sucesionesCon(6, false) + sucesionesCon(9, false) + sucesionesCon(10, false) +
        sucesionesCon(12, false) + sucesionesCon(14, false);
    const SucesionDePractica s = sorteo.de(todas);
    const PeriodoModular p = *s.periodo();
    const auto par = [](int a, int b) { return u"%1 %2"_s.arg(a).arg(b); };
    return {
        .enunciado = Traduce(u"¿En qué lugar empieza el periodo de %1, y de cuánto es? El primer "
                             "término está en el lugar 1."_s)
                         .arg(s.texto()),
        .forma = {FormaDeRespuesta::Lista},
        .ejemplo = Traduce(u"Lugar y longitud: 1, 20"_s),
        .esperada = u"%1, %2"_s.arg(p.inicio).arg(p.longitud),
        .juzga = juicioDe(
            par(p.inicio, p.longitud),
            {{par(p.longitud, p.inicio), Traduce(u"Están en el otro orden."_s), u"orden"_s},
             {par(p.inicio - 1, p.longitud),
              Traduce(u"Esos son los términos de entrada; se pide el lugar en el que empieza el "
                      "periodo."_s),
              u"entrada"_s},
             {par(1, p.longitud),
              Traduce(u"La primera pareja no vuelve: el periodo no empieza en ella."_s),
              u"desde-el-primero"_s},
             {par(p.inicio + 1, p.longitud),
              Traduce(u"Así también se repite, pero empieza a hacerlo antes."_s), u"tarde"_s},
             {par(p.inicio, 2 * p.longitud),
              Traduce(u"Así también se repite, pero el periodo es el menor."_s), u"multiplo"_s}},
            Traduce(u"Se piden dos números: dónde está por primera vez la pareja que se repite, "
                    "y cuánto tarda en volver."_s)),
        .pistas = {Traduce(u"Escriba términos hasta que vuelva a salir una pareja seguida: "
                           "¿dónde estaba?"_s),
                   Traduce(u"Los primeros son %1…"_s).arg(listaDe(s.valores(p.inicio + 3)))},
        .solucion = [s] { return s.pasos(); }};
}

Ejercicio periodo(int nivel, Sorteo &sorteo)
{
    return nivel == 1   ? periodoPuro(sorteo)
           : nivel == 2 ? periodoDeProducto(sorteo)
                        : entradaYPeriodo(sorteo);
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeModular()
{
    return {{u"modular.siguientes"_s, u"Los términos siguientes"_s, siguientes},
            {u"modular.periodo"_s, u"El periodo"_s, periodo},
            {u"modular.puramente"_s, u"¿Desde el primer término?"_s, puramentePeriodica},
            {u"modular.modulo"_s, u"El módulo, a partir de los restos"_s, moduloOculto}};
}
