// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/practice/ResueltoAparte.h"

#include <QHash>
#include <QRegularExpression>
#include <cmath>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

QString texto(qint64 n)
{
    return QString::number(n);
}

/// A function as the statement tells of it: below `caso` it answers at once.
struct Funcion
{
    qint64 caso;
    QList<qint64> bajadas;
    qint64 n;

    explicit Funcion(const Enunciado &e)
        : caso(e.n[0]), bajadas(e.n.sliced(1, e.n.size() - 2)), n(e.n.back())
    {
    }

    qint64 hojas(qint64 k) const
    {
        qint64 suma = k < caso ? 1 : 0;
        for (const qint64 b : bajadas)
            suma += k < caso ? 0 : hojas(k - b);
        return suma;
    }
    qint64 llama(qint64 k) const
    {
        qint64 llamadas = 1;
        for (const qint64 b : bajadas)
            llamadas += k < caso ? 0 : llama(k - b);
        return llamadas;
    }
    qint64 llamaUnaVez(qint64 k, std::set<qint64> &memoria) const
    {
        qint64 llamadas = 1;
        if (k < caso || memoria.count(k))
            return llamadas;
        for (const qint64 b : bajadas)
            llamadas += llamaUnaVez(k - b, memoria);
        memoria.insert(k);
        return llamadas;
    }
};

/// The disc of each move, by doing them.
void hanoi(int n, QList<qint64> &discos)
{
    if (n == 0)
        return;
    hanoi(n - 1, discos);
    discos << n;
    hanoi(n - 1, discos);
}

const QList<qint64> &movimientosDe(qint64 n)
{
    static QHash<qint64, QList<qint64>> conocidos;
    QList<qint64> &discos = conocidos[n];
    if (discos.isEmpty())
        hanoi(static_cast<int>(n), discos);
    return discos;
}

QString movimientos(const Enunciado &e, const QString &)
{
    const QList<qint64> &discos = movimientosDe(e.n[0]);
    if (e.nivel == 1)
        return texto(discos.count(e.n[1]));
    return texto(e.nivel == 2 ? discos[e.n[1] - 1] : discos.first(e.n[1]).count(e.n[2]));
}

QList<Equivocada> movimientosMal(const Enunciado &e, const QString &esperada)
{
    if (e.nivel == 1)
        return {{texto(movimientosDe(e.n[0]).size()), u"todos"_s},
                {texto(movimientosDe(e.n[0]).count(e.n[0] + 1 - e.n[1])), {}}};
    if (e.nivel == 2)
        return {{texto(e.n[0] + 1 - esperada.toInt()), {}}, {u"1"_s, {}}};
    return {{texto(movimientosDe(e.n[0]).count(e.n[2])), u"hasta-el-final"_s}};
}

qint64 partiendo(qint64 a, qint64 b, bool cuadrado, qint64 n)
{
    return n == 1 ? 1 : a * partiendo(a, b, cuadrado, n / b) + (cuadrado ? n * n : n);
}

qint64 segundoOrden(qint64 a, qint64 b, qint64 x0, qint64 x1, qint64 n)
{
    if (n < 2)
        return n == 0 ? x0 : x1;
    return a * segundoOrden(a, b, x0, x1, n - 1) + b * segundoOrden(a, b, x0, x1, n - 2);
}

/// x(n), or its neighbour so many places further on.
qint64 recurrencia(const Enunciado &e, int lugar)
{
    if (e.nivel == 1) {
        qint64 x = e.n[4];
        for (qint64 i = 0; i < e.n[5] + lugar; ++i)
            x = x * e.n[0] + e.n[2];
        return x;
    }
    if (e.nivel == 2) {
        const qint64 b = e.texto.contains(u"n − 1) − "_s) ? -e.n[2] : e.n[2];
        return segundoOrden(e.n[0], b, e.n[5], e.n[7], e.n[8] + lugar);
    }
    const bool cuadrado = e.texto.contains(u'²');
    const qint64 n = lugar == 0 ? e.n[4] : e.n[4] * e.n[1];
    return partiendo(e.n[0], e.n[1], cuadrado, n);
}

/// The logarithm of a usual order at n = e^x.
double logaritmo(const QString &orden, double x)
{
    const double n = std::exp(x);
    static const QStringList exponenciales = {u"2ⁿ"_s, u"3ⁿ"_s};
    if (orden == u"log n"_s)
        return std::log(x);
    if (orden == u"n!"_s)
        return n * x - n;
    if (orden == u"φⁿ"_s)
        return n * std::log((1 + std::sqrt(5)) / 2);
    if (exponenciales.contains(orden))
        return n * std::log(2 + exponenciales.indexOf(orden));
    const double potencia = orden.startsWith(u"n²"_s) ? 2 : orden.startsWith(u"n³"_s) ? 3 : 1;
    return potencia * x + (orden.endsWith(u"log n"_s) ? std::log(x) : 0);
}

double sumaDeLogaritmos(double a, double b)
{
    return std::max(a, b) + std::log1p(std::exp(-std::fabs(a - b)));
}

/// The order whose quotient with the function changes least between two places.
QString masCercano(double x1, double f1, double x2, double f2)
{
    QString mejor;
    double menor = 1e300;
    for (const QString &orden : {u"log n"_s, u"n"_s, u"n log n"_s, u"n²"_s, u"n² log n"_s, u"n³"_s,
                                 u"φⁿ"_s, u"2ⁿ"_s, u"3ⁿ"_s, u"n!"_s}) {
        const double cambio = std::fabs((f2 - logaritmo(orden, x2)) - (f1 - logaritmo(orden, x1)));
        if (cambio < menor) {
            menor = cambio;
            mejor = orden;
        }
    }
    return mejor;
}

double logDeSuma(const Enunciado &e, double x)
{
    static const QRegularExpression termino(u"(\\d+)·([^+.?]+?)(?= \\+|\\?)"_s);
    double suma = -1e300;
    for (auto i = termino.globalMatch(e.texto); i.hasNext();) {
        const auto hallado = i.next();
        const double suyo = std::log(hallado.captured(1).toDouble());
        suma = sumaDeLogaritmos(suma, suyo + logaritmo(hallado.captured(2), x));
    }
    return suma;
}

/// T(b^k) of T(n) = a·T(n/b) + gasto.
double logPartiendo(double a, double b, double d, double masConstante, int k)
{
    double t = 0;
    for (int i = 1; i <= k; ++i)
        t = sumaDeLogaritmos(std::log(a) + t, d * i * std::log(b) + masConstante);
    return t;
}

/// T(n) of what goes down by one or by two.
double logBajando(const QString &regla, double c, int hasta)
{
    double t = 0;
    double anterior = 0;
    for (int n = 2; n <= hasta; ++n) {
        double siguiente = t + (regla.contains(u"nT("_s)   ? std::log(n)
                                : regla.contains(u"2T("_s) ? std::log(2)
                                : regla.contains(u"3T("_s) ? std::log(3)
                                                           : 0);
        if (regla.contains(u"T(n − 2)"_s))
            siguiente = sumaDeLogaritmos(siguiente, anterior);
        const double gasto = c + (regla.contains(u"+ n +"_s)    ? n
                                  : regla.contains(u"+ n² +"_s) ? double(n) * n
                                                                : 0);
        anterior = t;
        t = sumaDeLogaritmos(siguiente, std::log(gasto));
    }
    return t;
}

QString orden(const Enunciado &e, const QString &)
{
    if (e.nivel == 1)
        return masCercano(200, logDeSuma(e, 200), 300, logDeSuma(e, 300));
    static const QRegularExpression regla(u"= (\\d*)T\\(n/(\\d+)\\) \\+ ([^?]+)\\?"_s);
    const auto hallada = regla.match(e.texto);
    if (hallada.hasMatch()) {
        const double a = hallada.captured(1).isEmpty() ? 1 : hallada.captured(1).toDouble();
        const double b = hallada.captured(2).toDouble();
        const QString gasto = hallada.captured(3);
        const double d = gasto == u"n"_s ? 1 : gasto == u"n²"_s ? 2 : gasto == u"n³"_s ? 3 : 0;
        const double c = d == 0 ? std::log(gasto.toDouble()) : 0;
        return masCercano(200 * std::log(b), logPartiendo(a, b, d, c, 200), 300 * std::log(b),
                          logPartiendo(a, b, d, c, 300));
    }
    const double c = static_cast<double>(e.n.back());
    return masCercano(std::log(2000), logBajando(e.texto, c, 2000), std::log(4000),
                      logBajando(e.texto, c, 4000));
}

} // namespace

QList<Resuelto> resueltosDeComplejidad()
{
    return {{u"complejidad.llamadas"_s,
             [](const auto &e, const auto &) {
                 const Funcion f(e);
                 return texto(f.llama(f.n));
             },
             [](const auto &e, const QString &esperada) {
                 const Funcion f(e);
                 std::set<qint64> memoria;
                 return QList<Equivocada>{{texto(esperada.toLongLong() - 1), u"sin-la-primera"_s},
                                          {texto(f.llamaUnaVez(f.n, memoria)), {}},
                                          {texto(f.hojas(f.n)), u"solo-hojas"_s},
                                          {texto(f.llama(f.n - 1)), {}}};
             }},
            {u"complejidad.memoria"_s,
             [](const auto &e, const auto &) {
                 const Funcion f(e);
                 std::set<qint64> memoria;
                 const qint64 con = f.llamaUnaVez(f.n, memoria);
                 return u"%1, %2"_s.arg(f.llama(f.n)).arg(con);
             },
             [](const auto &e, const QString &esperada) {
                 const QStringList dos = esperada.split(u", "_s);
                 return QList<Equivocada>{{dos[1] + u", "_s + dos[0], u"orden"_s},
                                          {dos[0] + u", "_s + dos[0], u"sin-ahorro"_s},
                                          {dos[0] + u", "_s + texto(e.n.back() + 1), {}},
                                          {dos[0], {}}};
             }},
            {u"complejidad.movimientos"_s, movimientos, movimientosMal},
            {u"complejidad.recurrencia"_s,
             [](const auto &e, const auto &) { return texto(recurrencia(e, 0)); },
             [](const auto &e, const auto &) {
                 return QList<Equivocada>{{texto(recurrencia(e, 1)), u"un-lugar"_s}, {u"1"_s, {}}};
             }},
            {u"complejidad.orden"_s, orden, [](const auto &, const QString &esperada) {
                 const bool conLog = esperada.endsWith(u"log n"_s);
                 return QList<Equivocada>{{conLog ? u"n!"_s : u"log n"_s, {}},
                                          {esperada == u"n³"_s ? u"n"_s : u"n³"_s, {}}};
             }}};
}
