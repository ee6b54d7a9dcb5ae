// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/Modular.h"

#include "practice/bank/JuicioDeNumeros.h"
#include "practice/bank/NumerosPequenos.h"
#include "practice/bank/SucesionDePractica.h"
#include "shell/core/ModGlobal.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Terminos = 8;

Fallo juzgaTerminos(const RespuestaLeida &respuesta, const SucesionDePractica &s)
{
    const auto son = [&](const SucesionDePractica &otra) {
        return respuesta.numeros.join(u' ') == textoDe(otra.valores(Terminos), u" "_s);
    };
    if (son(s))
        return acierto();
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
        const qint64 dado = numeroDe(respuesta, i);
        congruentes = congruentes && qAbs(dado / 2) < 1'000'000'000'000'000'000 &&
                      (dado - valores[i]) % s.m == 0;
    }
    if (congruentes)
        return Fallo::mal(Traduce(u"Son congruentes con ellos, pero los restos están entre 0 y %1."_s)
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
    return {.enunciado =
                Traduce(u"Escriba los %1 primeros términos de %2."_s).arg(QString::number(Terminos),
                                                                          s.texto()),
            .forma = {FormaDeRespuesta::Lista},
            .ejemplo = Traduce(u"Una lista: 1, 1, 2, 3, 5, 1, 6, 0"_s),
            .esperada = textoDe(f, u", "_s),
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
            return acierto();
        if (dado > 0 && dado % p.longitud == 0)
            return Fallo::mal(Traduce(u"Así también se repite, pero el periodo es el menor."_s),
                              u"multiplo"_s);
        if (dado == s.m)
            return Fallo::mal(Traduce(u"Ese es el módulo."_s), u"modulo"_s);
        const QList<qint64> f = s.valores(p.longitud + 2);
        if (dado > 0 && dado < p.longitud && f[dado] == f[0])
            return Fallo::mal(
                Traduce(u"Ahí vuelve un valor suelto: tiene que volver la pareja."_s),
                u"valor-suelto"_s);
        return Fallo::mal(Traduce(u"Busque la primera pareja de valores seguidos que se repite."_s));
    };
}

Ejercicio periodoPuro(Sorteo &sorteo)
{
    static const QList<SucesionDePractica> todas = sucesionesCon(4, true) + sucesionesCon(5, true) +
                                                   sucesionesCon(6, true) + sucesionesCon(7, true);
    const SucesionDePractica s = sorteo.de(todas);
    const PeriodoModular p = *s.periodo();
    return {.enunciado = Traduce(u"¿De cuánto es el periodo de %1?"_s).arg(s.texto()),
            .forma = {FormaDeRespuesta::Entero},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = QString::number(p.longitud),
            .juzga = juicioDeLongitud(s, p),
            .pistas = {Traduce(u"Escriba términos hasta que vuelva a salir una pareja seguida."_s),
                       Traduce(u"Los primeros son %1…"_s)
                           .arg(textoDe(s.valores(qMin(p.longitud, 6)), u", "_s))},
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
    return {.enunciado = Traduce(u"El periodo de los números de Fibonacci módulo %1 es %2, y módulo "
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
                 {QString::number(p + r), Traduce(u"Los periodos no se suman."_s), u"suma"_s},
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
                     {u"mcm(%1; %2) = %3"_s.arg(p).arg(r).arg(periodo)}}});
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
    return {.enunciado = Traduce(u"¿En qué lugar empieza el periodo de %1, y de cuánto es? El primer "
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
                  Traduce(u"Así también se repite, pero el periodo es el menor."_s),
                  u"multiplo"_s}},
                Traduce(u"Se piden dos números: dónde está por primera vez la pareja que se repite, "
                        "y cuánto tarda en volver."_s)),
            .pistas = {Traduce(u"Escriba términos hasta que vuelva a salir una pareja seguida: "
                               "¿dónde estaba?"_s),
                       Traduce(u"Los primeros son %1…"_s)
                           .arg(textoDe(s.valores(p.inicio + 3), u", "_s))},
            .solucion = [s] { return s.pasos(); }};
}

Ejercicio periodo(int nivel, Sorteo &sorteo)
{
    return nivel == 1   ? periodoPuro(sorteo)
           : nivel == 2 ? periodoDeProducto(sorteo)
                        : entradaYPeriodo(sorteo);
}

const QStringList &SiONo()
{
    static const QStringList palabras = {u"sí"_s, u"no"_s};
    return palabras;
}

Ejercicio todasPuras(Sorteo &sorteo)
{
    const qint64 m = sorteo.de(QList<qint64>{6, 8, 9, 10, 12, 14, 15, 18, 20, 21, 22});
    const bool puras = sorteo.moneda();
    QList<qint64> betas;
    for (qint64 beta = 2; beta < m; ++beta) {
        if ((std::gcd(beta, m) == 1) == puras)
            betas << beta;
    }
    const qint64 beta = sorteo.de(betas);
    const qint64 alfa = sorteo.entre(2, m - 1);
    return {
        .enunciado = Traduce(u"f(n) = %1 · f(n − 1) + %2 · f(n − 2), módulo %3. ¿Es seguro, se "
                             "empiece como se empiece, que se repite desde el primer término?"_s)
                         .arg(alfa)
                         .arg(beta)
                         .arg(m),
        .forma = {FormaDeRespuesta::Palabra, SiONo()},
        .ejemplo = {},
        .esperada = Traduce(SiONo()[puras ? 0 : 1]),
        .juzga =
            [alfa, m, puras](const RespuestaLeida &r) {
                const bool dicho = r.palabra == SiONo()[0];
                if (dicho == puras)
                    return acierto();
                if ((std::gcd(alfa, m) == 1) == dicho)
                    return Fallo::mal(Traduce(u"¿Ha mirado el coeficiente de f(n − 1)? Importa el "
                                              "otro: hay que poder despejar f(n − 2)."_s),
                                      u"mira-alfa"_s);
                return Fallo::mal(Traduce(u"Mire si se puede despejar f(n − 2)."_s));
            },
        .pistas = {Traduce(u"¿Se puede dar marcha atrás, es decir, despejar f(n − 2)?"_s),
                   Traduce(u"Se puede cuando %1 tiene inverso módulo %2."_s).arg(beta).arg(m)},
        .solucion = [=] {
            return Pasos(QList<Paso>{
                {puras ? Traduce(u"Sí: el coeficiente de f(n − 2) es primo con el módulo, y de cada "
                                 "pareja se vuelve a la anterior."_s)
                       : Traduce(u"No: el coeficiente de f(n − 2) no es primo con el módulo, y alguna "
                                 "sucesión tiene entrada."_s),
                 {u"mcd(%1; %2) = %3"_s.arg(beta).arg(m).arg(std::gcd(beta, m))}}});
        }};
}

/// Sequences whose coefficient does not decide, those that return to their first pair and those
/// that do not.
const QList<SucesionDePractica> &dudosas(bool puras)
{
    const auto busca = [](bool cuales) {
        QList<SucesionDePractica> halladas;
        for (const qint64 m : {4, 6, 8, 9, 10}) {
            for (qint64 beta = 2; beta < m; ++beta) {
                for (qint64 i = 0; i < m * m * m; ++i) {
                    const SucesionDePractica s{1 + i % (m - 1), beta, i / m % m, i / m / m, m};
                    if (std::gcd(beta, m) == 1 || (s.f1 == 0 && s.f2 == 0))
                        continue;
                    const auto p = s.periodo();
                    if (p->longitud < 13 && (p->inicio == 1) == cuales)
                        halladas << s;
                }
            }
        }
        return halladas;
    };
    static const QList<SucesionDePractica> buenas = busca(true);
    static const QList<SucesionDePractica> malas = busca(false);
    return puras ? buenas : malas;
}

Ejercicio estaEsPura(Sorteo &sorteo)
{
    const bool pura = sorteo.moneda();
    const SucesionDePractica s = sorteo.de(dudosas(pura));
    return {
        .enunciado = Traduce(u"¿Se repite desde el primer término %1?"_s).arg(s.texto()),
        .forma = {FormaDeRespuesta::Palabra, SiONo()},
        .ejemplo = {},
        .esperada = Traduce(SiONo()[pura ? 0 : 1]),
        .juzga =
            [pura](const RespuestaLeida &r) {
                if ((r.palabra == SiONo()[0]) == pura)
                    return acierto();
                return pura ? Fallo::mal(Traduce(u"El coeficiente de f(n − 2) permite que haya "
                                                 "entrada, pero no en todas: ¿vuelve la primera "
                                                 "pareja?"_s),
                                         u"regla-de-todas"_s)
                            : Fallo::mal(Traduce(u"Escriba términos: ¿vuelve la primera pareja?"_s),
                                         u"hay-entrada"_s);
            },
        .pistas = {Traduce(u"El coeficiente de f(n − 2) no es primo con el módulo: hay que mirar si "
                           "vuelve la primera pareja."_s),
                   Traduce(u"Los primeros son %1…"_s)
                       .arg(textoDe(s.valores(s.periodo()->inicio + 3), u", "_s))},
        .solucion = [s] { return s.pasos(); }};
}

Ejercicio cuantosBetas(Sorteo &sorteo)
{
    const qint64 m =
        sorteo.de(QList<qint64>{12, 15, 18, 20, 21, 24, 26, 28, 30, 33, 35, 36, 40, 42, 45});
    const qint64 buenos = coprimosCon(m, 1, m).size();
    return {
        .enunciado = Traduce(u"f(n) = f(n − 1) + β · f(n − 2), módulo %1. ¿Con cuántos β, de 1 a %1, "
                             "es seguro que se repite desde el primer término, se empiece como se "
                             "empiece?"_s)
                         .arg(m),
        .forma = {FormaDeRespuesta::Entero},
        .ejemplo = Traduce(u"Un número"_s),
        .esperada = QString::number(buenos),
        .juzga = juicioDe(
            QString::number(buenos),
            {{QString::number(m - buenos), Traduce(u"Con esos no es seguro."_s), u"al-reves"_s},
             {QString::number(buenos - 1), Traduce(u"¿Ha contado el 1?"_s), u"sin-el-1"_s},
             {QString::number(m - 1), Traduce(u"No basta que β no sea 0 módulo m."_s),
              u"no-nulos"_s},
             {QString::number(m), Traduce(u"Con algunos puede haber entrada."_s), u"todos"_s}},
            Traduce(u"Cuente los β que tienen inverso."_s)),
        .pistas = {Traduce(u"¿Con qué β se puede despejar f(n − 2)?"_s),
                   Traduce(u"Con los que son primos con %1: los cuenta la función φ de Euler."_s).arg(m)},
        .solucion = [=] {
            return Pasos(QList<Paso>{{Traduce(u"Son los β primos con el módulo, que tienen inverso."_s),
                                      {u"φ(%1) = %2"_s.arg(m).arg(buenos)}}});
        }};
}

Ejercicio puramente(int nivel, Sorteo &sorteo)
{
    return nivel == 1   ? todasPuras(sorteo)
           : nivel == 2 ? estaEsPura(sorteo)
                        : cuantosBetas(sorteo);
}

} // namespace

QList<TipoDeEjercicio> ejerciciosDeModular()
{
    return {{u"modular.siguientes"_s, u"Los términos siguientes"_s, siguientes},
            {u"modular.periodo"_s, u"El periodo"_s, periodo},
            {u"modular.puramente"_s, u"¿Desde el primer término?"_s, puramente},
            {u"modular.modulo"_s, u"El módulo, a partir de los restos"_s, moduloOculto}};
}
