// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/complexity/Recurrencias.h"

#include "practice/bank/shared/Juicios.h"
#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A recurrence with its value where it is asked for.
struct Recurrencia
{
    QString enunciado;
    qint64 valor;
    QList<ErrorTipico> errores;
    QStringList pistas;
    QList<Paso> pasos;
};

/// " + 3" or " − 3".
QString conSigno(qint64 n, const QString &detras = {})
{
    return (n < 0 ? u" − "_s : u" + "_s) + numero(qAbs(n)) + detras;
}

ErrorTipico lugarDeAntes(qint64 valor)
{
    return {numero(valor), Traduce(u"Ese es el valor anterior."_s), u"un-lugar"_s};
}

ErrorTipico lugarDeDespues(qint64 valor)
{
    return {numero(valor), Traduce(u"Ese es el valor siguiente."_s), u"un-lugar"_s};
}

Recurrencia dePrimerOrden(Sorteo &sorteo)
{
    const qint64 a = sorteo.entre(2, 4);
    const qint64 c = sorteo.entre(1, 5);
    const qint64 x0 = sorteo.entre(1, 4);
    const int n = static_cast<int>(sorteo.entre(4, 7));
    const QList<qint64> x = valoresDePrimerOrden(a, c, x0, n);
    Recurrencia r{Traduce(u"x(n) = %1x(n − 1) + %2, con x(0) = %3. ¿Cuánto vale x(%4)?"_s)
                      .arg(a)
                      .arg(c)
                      .arg(x0)
                      .arg(n),
                  x[n],
                  {lugarDeAntes(x[n - 1]),
                   lugarDeDespues(x[n + 1]),
                   {numero(x0 * potencia(a, n)),
                    Traduce(u"Ha olvidado la constante que se suma."_s), u"sin-constante"_s},
                   {numero(x0 * potencia(a, n) + c),
                    Traduce(u"La constante se suma en cada paso, y después se multiplica con lo "
                            "demás."_s),
                    u"constante-una-vez"_s},
                   {numero(valoresDePrimerOrden(c, a, x0, n)[n]),
                    Traduce(u"Ha cambiado el factor por la constante."_s), u"cambiados"_s}},
                  {Traduce(u"Calcule uno tras otro, o busque una constante que sumar para que solo "
                           "quede multiplicar."_s),
                   Traduce(u"x(1) = %1 y x(2) = %2."_s).arg(x[1]).arg(x[2])},
                  {}};
    for (int k = 1; k <= n; ++k)
        r.pasos << Paso{
            Traduce(u"De x(%1) sale x(%2)."_s).arg(k - 1).arg(k),
            {u"x(%1) = %2*%3 + %4 = %5"_s.arg(k).arg(a).arg(x[k - 1]).arg(c).arg(x[k])}};
    return r;
}

/// x(0) … x(n + 1) of x(k) = a·x(k − 1) + b·x(k − 2).
QList<qint64> valoresDeSegundoOrden(qint64 a, qint64 b, qint64 x0, qint64 x1, int n)
{
    QList<qint64> x = {x0, x1};
    while (x.size() <= n + 1)
        x << a * x.back() + b * x[x.size() - 2];
    return x;
}

QString formulaConRaices(qint64 A, qint64 B, std::pair<qint64, qint64> raices, int n)
{
    const auto [r, s] = raices;
    if (r == s)
        return u"(%1 + %2*%3)*%4^%3"_s.arg(A).arg(B).arg(n).arg(r);
    return u"%1*%2^%3 + %4*(%5)^%3"_s.arg(A).arg(r).arg(n).arg(B).arg(s);
}

Recurrencia deSegundoOrden(Sorteo &sorteo)
{
    // Neither coefficient is 0, 1 or −1, so that all of them can be read.
    static const QList<std::pair<qint64, qint64>> todas = {{3, 2},  {3, -1}, {2, 2},  {3, 1},
                                                           {3, 3},  {4, 1},  {4, -1}, {4, 2},
                                                           {4, -2}, {5, -2}, {5, -3}};
    const auto raices = sorteo.de(todas);
    const qint64 r = raices.first;
    const qint64 s = raices.second;
    const qint64 A = sorteo.entre(1, 4);
    const qint64 B = sorteo.entre(1, A); // so that both first values are positive
    const int n = static_cast<int>(sorteo.entre(5, 8));
    const qint64 x0 = r == s ? A : A + B;
    const qint64 x1 = r == s ? (A + B) * r : A * r + B * s;
    const QList<qint64> x = valoresDeSegundoOrden(r + s, -r * s, x0, x1, n);
    return {Traduce(u"x(n) = %1, con x(0) = %2 y x(1) = %3. ¿Cuánto vale x(%4)?"_s)
                .arg(u"%1x(n − 1)"_s.arg(r + s) + conSigno(-r * s, u"x(n − 2)"_s))
                .arg(x0)
                .arg(x1)
                .arg(n),
            x[n],
            {lugarDeAntes(x[n - 1]),
             lugarDeDespues(x[n + 1]),
             {numero(valoresDeSegundoOrden(-r * s, r + s, x0, x1, n)[n]),
              Traduce(u"Ha cambiado un coeficiente por el otro."_s), u"cambiados"_s},
             {numero(valoresDeSegundoOrden(r + s, r * s, x0, x1, n)[n]),
              Traduce(u"El segundo coeficiente lleva otro signo."_s), u"signo"_s},
             {numero(potencia(r, n)), Traduce(u"Faltan las constantes, que fijan x(0) y x(1)."_s),
              u"sin-constantes"_s}},
            {Traduce(u"Calcule uno tras otro, o resuelva la ecuación característica."_s),
             Traduce(u"Las raíces de la ecuación característica son %1 y %2."_s).arg(r).arg(s)},
            {{Traduce(u"Las raíces de la ecuación característica suman el primer coeficiente, y su "
                      "producto es el segundo cambiado de signo: %1 y %2."_s)
                  .arg(r)
                  .arg(s),
              {u"%1 + (%2) = %3"_s.arg(r).arg(s).arg(r + s),
               u"-%1*(%2) = %3"_s.arg(r).arg(s).arg(-r * s)}},
             {Traduce(u"Los dos primeros valores dan las constantes: %1 y %2."_s).arg(A).arg(B),
              {u"x(0) = %1 = %2"_s.arg(formulaConRaices(A, B, raices, 0)).arg(x0),
               u"x(1) = %1 = %2"_s.arg(formulaConRaices(A, B, raices, 1)).arg(x1)}},
             {Traduce(u"El valor que se pide."_s),
              {u"x(%1) = %2 = %3"_s.arg(n).arg(formulaConRaices(A, B, raices, n)).arg(x[n])}}}};
}

/// T(1), T(b), T(b²) … of T(n) = a·T(n/b) + n^d.
QList<qint64> valoresPartiendo(qint64 a, qint64 b, int d, int k)
{
    QList<qint64> t = {1};
    for (int i = 1; i <= k + 1; ++i)
        t << a * t.back() + potencia(b, d * i);
    return t;
}

Recurrencia partiendo(Sorteo &sorteo)
{
    const qint64 a = sorteo.entre(2, 5);
    const qint64 b = sorteo.entre(2, 4);
    const int d = static_cast<int>(sorteo.entre(1, 2));
    const int k = static_cast<int>(sorteo.entre(3, b == 2 ? 5 : 4));
    const qint64 n = potencia(b, k);
    const QList<qint64> t = valoresPartiendo(a, b, d, k);
    Recurrencia r{
        Traduce(u"T(n) = %1T(n/%2) + %3, con T(1) = 1. ¿Cuánto vale T(%4)?"_s)
            .arg(numero(a), numero(b), d == 1 ? u"n"_s : u"n²"_s, numero(n)),
        t[k],
        {lugarDeAntes(t[k - 1]),
         lugarDeDespues(t[k + 1]),
         {numero(potencia(a, k)), Traduce(u"Esas son solo las hojas del árbol."_s),
          u"solo-hojas"_s},
         {numero(t[k] - potencia(n, d)),
          Traduce(u"Falta lo que se gasta en partir y juntar al principio."_s), u"sin-la-raiz"_s},
         {numero(t[k] - potencia(a, k)), Traduce(u"T(1) vale 1, no 0."_s), u"caso-base"_s}},
        {Traduce(u"Empiece en T(1) y suba multiplicando n por %1."_s).arg(b),
         Traduce(u"T(%1) = %2 y T(%3) = %4."_s).arg(b).arg(t[1]).arg(b * b).arg(t[2])},
        {}};
    for (int i = 1; i <= k; ++i) {
        const qint64 m = potencia(b, i);
        r.pasos << Paso{
            Traduce(u"De T(%1) sale T(%2)."_s).arg(m / b).arg(m),
            {u"T(%1) = %2*%3 + %1^%4 = %5"_s.arg(m).arg(a).arg(t[i - 1]).arg(d).arg(t[i])}};
    }
    return r;
}

} // namespace

Ejercicio valorDeRecurrencia(int nivel, Sorteo &sorteo)
{
    const Recurrencia r = nivel == 1   ? dePrimerOrden(sorteo)
                          : nivel == 2 ? deSegundoOrden(sorteo)
                                       : partiendo(sorteo);
    return {.enunciado = r.enunciado,
            .forma = {FormaDeRespuesta::Entero},
            .ejemplo = Traduce(u"Un número"_s),
            .esperada = numero(r.valor),
            .juzga = juicioDe(numero(r.valor), r.errores,
                              Traduce(u"No es ese valor: calcule los primeros y suba."_s)),
            .pistas = r.pistas,
            .solucion = [pasos = r.pasos] { return Pasos(pasos); }};
}
