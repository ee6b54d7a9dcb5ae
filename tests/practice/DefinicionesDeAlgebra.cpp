// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/practice/DefinicionesDeAlgebra.h"

#include "bignum/gateway/ModBignum.h"

#include <QHash>
#include <QSet>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

QString cifras(qint64 n)
{
    return QString::number(n);
}

bool esPrimo(qint64 n)
{
    for (qint64 d = 2; d * d <= n; ++d) {
        if (n % d == 0)
            return false;
    }
    return n > 1;
}

qint64 potencia(qint64 a, qint64 k, qint64 n)
{
    qint64 r = 1 % n;
    for (; k > 0; --k)
        r = r * a % n;
    return r;
}

qint64 orden(qint64 a, qint64 n)
{
    qint64 k = 1;
    for (qint64 x = a % n; x != 1; x = x * a % n)
        ++k;
    return k;
}

qint64 mod(qint64 a, qint64 n)
{
    return (a % n + n) % n;
}

/// The orders of all units modulo n.
const Numeros &ordenes(qint64 n)
{
    static QHash<qint64, Numeros> hechos;
    if (!hechos.contains(n)) {
        Numeros &todas = hechos[n];
        for (qint64 a = 1; a < n; ++a) {
            if (std::gcd(a, n) == 1)
                todas << orden(a, n);
        }
    }
    return hechos[n];
}

bool es(const Dada &r, const Numeros &n)
{
    return r.palabra.isEmpty() && r.n == n;
}

Numeros divisiones(qint64 a, qint64 b, bool minimos, bool cocientes, bool restos)
{
    Numeros fila;
    while (b != 0) {
        qint64 q = a / b, r = a % b;
        if (minimos && 2 * r > b) {
            ++q;
            r -= b;
        }
        if (cocientes)
            fila << q;
        if (restos)
            fila << r;
        a = std::exchange(b, std::abs(r));
    }
    return fila;
}

/// Whether a·x takes the value c modulo b.
bool alcanza(qint64 a, qint64 b, qint64 c)
{
    qint64 x = 0;
    do {
        if (mod(c - x, b) == 0)
            return true;
        x = (x + a) % b;
    } while (x != 0);
    return false;
}

bool general(const Leido &e, const Dada &r)
{
    const qint64 a = e.n[0], b = e.texto.contains(u'−') ? -e.n[1] : e.n[1], c = e.n[2];
    const auto [x, pasoX, y, pasoY] = std::tuple(r.n[0], r.n[1], r.n[2], r.n[3]);
    for (qint64 k = -3; k <= 3; ++k) {
        if (a * (x + k * pasoX) + b * (y + k * pasoY) != c)
            return false;
    }
    for (qint64 otro = x + 1; otro < x + std::abs(pasoX); ++otro) {
        if ((c - a * otro) % b == 0)
            return false;
    }
    return pasoX != 0;
}

bool elegidas(const Leido &e, const Dada &r)
{
    Numeros buenas;
    for (const qint64 c : e.n.mid(2)) {
        if (alcanza(e.n[0], e.n[1], c))
            buenas << c;
    }
    if (e.nivel == 1)
        return r.palabra == (buenas.isEmpty() ? u"no"_s : u"sí"_s);
    return QSet(r.n.begin(), r.n.end()) == QSet(buenas.begin(), buenas.end()) &&
           (r.palabra.isEmpty() || buenas.isEmpty());
}

qint64 positivas(const Leido &e)
{
    qint64 cuantas = 0;
    for (qint64 x = 1; e.n[2] * x < e.n[4]; ++x)
        cuantas += (e.n[4] - e.n[2] * x) % e.n[3] == 0 ? 1 : 0;
    return cuantas;
}

bool factores(const Leido &e, const Dada &r)
{
    qint64 producto = 1;
    for (qsizetype i = 0; i < r.n.size(); i += 2) {
        if (!esPrimo(r.n[i]))
            return false;
        for (qint64 k = 0; k < r.n[i + 1]; ++k) {
            producto *= r.n[i];
            if (producto > e.n[0])
                return false;
        }
    }
    return producto == e.n[0];
}

qint64 primosHasta(qint64 desde, qint64 hasta)
{
    qint64 cuantos = 0;
    for (qint64 n = desde; n <= hasta; ++n)
        cuantos += esPrimo(n) ? 1 : 0;
    return cuantos;
}

bool divisores(const Leido &e, const Dada &r)
{
    qint64 cuantos = 0, suma = 0;
    const qint64 n = e.n[0];
    for (qint64 d = 1; d * d <= n; ++d) {
        if (n % d == 0) {
            cuantos += d * d == n ? 1 : 2;
            suma += d * d == n ? d : d + n / d;
        }
    }
    return es(r, {cuantos, suma}) || es(r, {suma, cuantos});
}

bool testigo(const Leido &e, const Dada &r)
{
    const qint64 b = e.n[0], n = e.n[1], d = e.n[3];
    bool loEs = potencia(b, d, n) != 1;
    for (qint64 k = d; e.nivel > 1 && k < n - 1; k *= 2)
        loEs = loEs && potencia(b, k, n) != n - 1;
    return loEs ? es(r, {potencia(b, d, n)}) : r.palabra == u"no"_s;
}

bool primitiva(const Leido &e, const Dada &r)
{
    const Numeros &todas = ordenes(e.n[0]);
    if (!r.palabra.isEmpty())
        return !todas.contains(todas.size());
    return std::gcd(r.n[0], e.n[0]) == 1 && orden(mod(r.n[0], e.n[0]), e.n[0]) == todas.size();
}

qint64 lambda(const Leido &e)
{
    const Numeros &todas = ordenes(e.n[0]);
    return std::accumulate(todas.begin(), todas.end(), qint64(1),
                           [](qint64 a, qint64 b) { return std::lcm(a, b); });
}

bool unidad(const Leido &e, const Dada &r)
{
    const qint64 a = e.n[0], n = e.n[1];
    if (e.nivel == 1)
        return (r.palabra == u"unidad"_s) == alcanza(a, n, 1);
    return r.palabra.isEmpty() &&
           (mod(a * r.n[0], n) == 1 || (mod(r.n[0], n) != 0 && mod(a * r.n[0], n) == 0));
}

bool lineal(const Leido &e, const Dada &r)
{
    QSet<qint64> todas;
    for (qint64 x = 0; x < e.n[4]; ++x) {
        if (mod(e.n[2] * x - e.n[3], e.n[4]) == 0)
            todas << x;
    }
    return r.palabra.isEmpty() ? !todas.isEmpty() && QSet(r.n.begin(), r.n.end()) == todas
                               : todas.isEmpty();
}

/// "x ≡ r (mod m)", two numbers a congruence.
bool cumple(const Numeros &sistema, qint64 x)
{
    for (qsizetype i = 0; i < sistema.size(); i += 2) {
        if (mod(x - sistema[i], sistema[i + 1]) != 0)
            return false;
    }
    return true;
}

bool noCoprimos(const Leido &e, const Dada &r)
{
    const qint64 m = e.n[1], n = e.n[3];
    if (r.n.size() == 1) {
        const qint64 d = r.n[0];
        return d != 0 && m % d == 0 && n % d == 0 && (e.n[0] - e.n[2]) % d != 0;
    }
    qint64 periodo = m;
    while (periodo % n != 0)
        periodo += m;
    return r.n.size() == 2 && cumple(e.n, r.n[0]) && std::abs(r.n[1]) == periodo;
}

/// The least number above the bound that fulfils the statement of a level.
qint64 minimo(const Leido &e)
{
    Numeros sistema;
    const qsizetype k = e.nivel == 1 ? 2 : 3;
    for (qsizetype i = 0; i < k; ++i)
        sistema << (e.nivel == 1 ? e.n[1] : e.n[1 + k + i])
                << (e.nivel == 1 ? e.n[2 + i] : e.n[1 + i]);
    qint64 x = e.n[0] + 1;
    while (!cumple(sistema, x))
        ++x;
    return x;
}

/// The congruences of a story: modulus and remainder by turns, the bound last.
Numeros sistemaDeLaHistoria(const Leido &e)
{
    const Numeros datos = e.n.first(e.n.size() - 1);
    Numeros sistema;
    const qsizetype porDato = e.texto.contains(u"ovejas") ? 3 : 2;
    for (qsizetype i = 0; i < datos.size(); i += porDato)
        sistema << datos[i + porDato - 1] << datos[i];
    return sistema;
}

qint64 deLaHistoria(const Leido &e)
{
    const Numeros sistema = sistemaDeLaHistoria(e);
    qint64 x = 1;
    while (!cumple(sistema, x))
        ++x;
    return x < e.n.constLast() ? x : -1;
}

EsBuena unico(qint64 (*valor)(const Leido &))
{
    return [valor](const Leido &e, const Dada &r) { return es(r, {valor(e)}); };
}

} // namespace

const QList<std::pair<QString, EsBuena>> &definicionesDeAlgebra()
{
    static const QList<std::pair<QString, EsBuena>> todas{
        {u"euclides.mcd"_s,
         unico([](const Leido &e) { return Mcd(cifras(e.n[0]), cifras(e.n[1])).toLongLong(); })},
        {u"euclides.divisiones"_s,
         [](const Leido &e, const Dada &r) {
             return es(r, divisiones(e.n[0], e.n[1], false, e.nivel != 2, e.nivel != 1));
         }},
        {u"euclides.bezout"_s,
         [](const Leido &e, const Dada &r) {
             return r.n.size() == 2 && cifras(e.n[0] * r.n[0] + e.n[1] * r.n[1]) ==
                                           Mcd(cifras(e.n[0]), cifras(e.n[1]));
         }},
        {u"euclides.restosminimos"_s,
         [](const Leido &e, const Dada &r) {
             return es(r, divisiones(e.n[1], e.n[2], true, false, true));
         }},
        {u"euclides.mcm"_s, unico([](const Leido &e) {
             qint64 m = e.n[0];
             while (m % e.n[1] != 0)
                 m += e.n[0];
             return m;
         })},
        {u"euclides.soluble"_s, elegidas},
        {u"euclides.general"_s, general},
        {u"euclides.positivas"_s,
         [](const Leido &e, const Dada &r) {
             return es(r, {positivas(e)}) || (r.palabra == u"ninguna"_s && positivas(e) == 0);
         }},
        {u"primos.esprimo"_s,
         [](const Leido &e, const Dada &r) {
             if (!r.palabra.isEmpty())
                 return r.palabra == u"primo"_s && esPrimo(e.n[0]);
             const qint64 d = std::abs(r.n[0]);
             return d > 1 && d < e.n[0] && e.n[0] % d == 0;
         }},
        {u"primos.factores"_s, factores},
        {u"primos.siguiente"_s, unico([](const Leido &e) {
             qint64 p = e.n[0] + 1;
             while (!esPrimo(p))
                 ++p;
             return p;
         })},
        {u"primos.cuantos"_s, unico([](const Leido &e) {
             return primosHasta(e.nivel < 3 ? 1 : e.n[0], e.n[e.nivel < 3 ? 0 : 1]);
         })},
        {u"primos.divisores"_s, divisores},
        {u"primos.ultimodivisor"_s, unico([](const Leido &e) {
             qint64 ultimo = 0;
             for (qint64 p = 2; p * p <= e.n[0]; ++p)
                 ultimo = esPrimo(p) ? p : ultimo;
             return ultimo;
         })},
        {u"primos.testigo"_s, testigo},
        {u"unidades.fi"_s,
         unico([](const Leido &e) { return FiEuler(cifras(e.n[0])).toLongLong(); })},
        {u"unidades.inverso"_s,
         [](const Leido &e, const Dada &r) { return mod(e.n[0] * r.n[0], e.n[1]) == 1; }},
        {u"unidades.orden"_s, unico([](const Leido &e) { return orden(e.n[0], e.n[1]); })},
        {u"unidades.potencia"_s, unico([](const Leido &e) {
             return PotenciaMod(cifras(e.n[0]), cifras(e.n[1]), cifras(e.n[2])).toLongLong();
         })},
        {u"unidades.primitiva"_s, primitiva},
        {u"unidades.lambda"_s, unico(lambda)},
        {u"unidades.unidad"_s, unidad},
        {u"unidades.lineal"_s, lineal},
        {u"congruencias.dosmodulos"_s,
         [](const Leido &e, const Dada &r) { return cumple(e.n, r.n[0]); }},
        {u"congruencias.tresmodulos"_s,
         [](const Leido &e, const Dada &r) { return cumple(e.n, r.n[0]); }},
        {u"congruencias.nocoprimos"_s, noCoprimos},
        {u"congruencias.minimo"_s, unico(minimo)},
        {u"congruencias.potencia"_s, unico([](const Leido &e) {
             return PotenciaMod(cifras(e.n[0]), cifras(e.n[1]), cifras(e.n[2])).toLongLong();
         })},
        {u"congruencias.problema"_s, unico(deLaHistoria)}};
    return todas;
}
