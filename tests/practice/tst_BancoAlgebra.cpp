// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "practice/engine/Banco.h"

#include <QHash>
#include <QTest>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

/// The kinds on integers, primes, units and congruences, against what their statements say: each
/// answer is checked by the definition, with the numbers as a student reads them.
class tst_BancoAlgebra : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(50); }
    void cleanupTestCase() { TerminaBignum(); }
    void elJuezSabeLoQueEsCierto_data();
    void elJuezSabeLoQueEsCierto();
    void cadaErrorTieneSuPalabra_data();
    void cadaErrorTieneSuPalabra();
    void unNumeroLarguisimo_data() { elJuezSabeLoQueEsCierto_data(); }
    void unNumeroLarguisimo();
    void coeficientesLarguisimos();
};

namespace {

constexpr int Sorteos = 10'000;

using Numeros = QList<qint64>;

/// An exercise as a student has it: its level, its words, the numbers among them.
struct Leido
{
    int nivel;
    QString texto;
    Numeros n;
};

/// An answer without its text: numbers or a word.
struct Dada
{
    Numeros n;
    QString palabra = {};

    RespuestaLeida leida() const
    {
        RespuestaLeida r{RespuestaLeida::Leida, {}, palabra, {}};
        for (const qint64 x : n)
            r.numeros << QString::number(x);
        return r;
    }
};

using EsBuena = std::function<bool(const Leido &, const Dada &)>;

Numeros numerosDe(const QString &texto)
{
    Numeros numeros;
    bool dentro = false;
    for (const QChar c : texto) {
        if (c.isDigit() && dentro)
            numeros.back() = numeros.back() * 10 + c.digitValue();
        else if (c.isDigit())
            numeros << c.digitValue();
        dentro = c.isDigit();
    }
    return numeros;
}

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

Dada una(qint64 n)
{
    return {{n}};
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
    for (const qint64 c : e.n.sliced(2)) {
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
        for (qint64 k = 0; k < r.n[i + 1]; ++k)
            producto *= r.n[i];
        if (!esPrimo(r.n[i]))
            return false;
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
    qint64 x = 1;
    while (!cumple(sistemaDeLaHistoria(e), x))
        ++x;
    return x < e.n.constLast() ? x : -1;
}

EsBuena unico(qint64 (*valor)(const Leido &))
{
    return [valor](const Leido &e, const Dada &r) { return es(r, {valor(e)}); };
}

/// What is right, by the definition or by an entry of the library that the judge does not use.
const QList<std::pair<QString, EsBuena>> &definiciones()
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

EsBuena definicion(const QString &clave)
{
    const auto &todas = definiciones();
    return std::find_if(todas.begin(), todas.end(), [&](const auto &d) { return d.first == clave; })
        ->second;
}

struct Sorteado
{
    Ejercicio ejercicio;
    Leido leido;
};

Sorteado sortea(const TipoDeEjercicio &tipo, int nivel, int i)
{
    Sorteo sorteo(semillaDe(1, tipo.clave, nivel, i));
    Ejercicio e = tipo.genera(nivel, sorteo);
    const Leido leido{nivel, e.enunciado, numerosDe(e.enunciado)};
    return {e, leido};
}

/// What is expected, without the reader of answers, for which there is a test of its own.
Dada esperada(const Ejercicio &e)
{
    if (e.forma.palabras.contains(e.esperada))
        return {{}, e.esperada};
    Dada dada;
    if (e.forma.clase == FormaDeRespuesta::Producto) {
        for (const QString &potencia : e.esperada.split(u'*'))
            dada.n << potencia.section(u'^', 0, 0).toLongLong()
                   << std::max<qint64>(1, potencia.section(u'^', 1).toLongLong());
    } else if (e.forma.clase == FormaDeRespuesta::Solucion) {
        for (const QString &numero : leeRespuesta(e.esperada, e.forma).numeros)
            dada.n << numero.toLongLong();
    } else {
        for (const QString &numero : e.esperada.split(u", "_s))
            dada.n << numero.toLongLong();
    }
    return dada;
}

/// The same answer, wrong somewhere: another number, two exchanged, one too few, another word.
Dada alterada(Dada r, const Ejercicio &e, Sorteo &sorteo)
{
    const qint64 como = sorteo.entre(0, 5);
    if (r.n.isEmpty() || (como == 0 && !e.forma.palabras.isEmpty()))
        return e.forma.clase == FormaDeRespuesta::Palabra || sorteo.moneda()
                   ? Dada{{}, sorteo.de(e.forma.palabras)}
                   : una(sorteo.entre(0, 40));
    const bool fija =
        e.forma.clase == FormaDeRespuesta::Producto || e.forma.clase == FormaDeRespuesta::Solucion;
    const qsizetype i = sorteo.entre(0, r.n.size() - 1);
    if (como == 1 && r.n.size() > 1 && !fija)
        r.n.removeLast();
    else if (como == 2 && r.n.size() > 1 && !fija)
        r.n.swapItemsAt(i, (i + 1) % r.n.size());
    else if (como == 3)
        r.n[i] = fija ? r.n[i] + 1 : -r.n[i];
    else
        r.n[i] += sorteo.entre(1, 12) * (sorteo.moneda() || fija ? 1 : -1);
    return r;
}

struct ErrorTipico
{
    QString clave, nota;
    /// What a student who makes it answers, in place of the right answer; nothing where it cannot
    /// be made.
    Dada (*error)(const Leido &e, const Dada &r);
};

Dada palabra(const QString &cual)
{
    return {{}, cual};
}

/// All exponents forgotten: the product over the primes p of n of what f makes of p.
template <typename F>
qint64 porPrimos(qint64 n, F f, qint64 (*junta)(qint64, qint64))
{
    qint64 r = 1;
    for (qint64 p = 2; p <= n; ++p) {
        if (esPrimo(p) && n % p == 0)
            r = junta(r, f(p));
        while (n % p == 0)
            n /= p;
    }
    return r;
}

qint64 por(qint64 a, qint64 b)
{
    return a * b;
}

qint64 mcm(qint64 a, qint64 b)
{
    return std::lcm(a, b);
}

qint64 menosUno(qint64 p)
{
    return p - 1;
}

qint64 raiz(qint64 n)
{
    qint64 r = 1;
    while ((r + 1) * (r + 1) <= n)
        ++r;
    return r;
}

qint64 exponente(qint64 n, qint64 p)
{
    qint64 k = 0;
    for (; n % p == 0; n /= p)
        ++k;
    return k;
}

const QList<ErrorTipico> &errores()
{
    using L = const Leido &;
    using D = const Dada &;
    static const QList<ErrorTipico> todos{
        {u"euclides.mcd"_s, u"mcm"_s, [](L e, D) { return una(std::lcm(e.n[0], e.n[1])); }},
        {u"euclides.mcd"_s, u"divisor-menor"_s, [](L, D) { return una(1); }},
        {u"euclides.mcd"_s, u"no-divide"_s, [](L e, D) { return una(e.n[1] + 1); }},
        {u"euclides.divisiones"_s, u"otra-columna"_s,
         [](L e, D) {
             return e.nivel == 3
                        ? Dada{}
                        : Dada{divisiones(e.n[0], e.n[1], false, e.nivel == 2, e.nivel == 1)};
         }},
        {u"euclides.divisiones"_s, u"incompleta"_s,
         [](L, D r) { return Dada{r.n.first(r.n.size() - 1)}; }},
        {u"euclides.divisiones"_s, u"sobran"_s, [](L, D r) { return Dada{r.n + Numeros{1}}; }},
        {u"euclides.divisiones"_s, u"division"_s,
         [](L, D r) { return Dada{Numeros{r.n[0] + 1} + r.n.sliced(1)}; }},
        {u"euclides.bezout"_s, u"signo"_s,
         [](L, D r) {
             return Dada{{-r.n[0], -r.n[1]}};
         }},
        {u"euclides.bezout"_s, u"cambiados"_s,
         [](L, D r) {
             return Dada{{r.n[1], r.n[0]}};
         }},
        {u"euclides.bezout"_s, u"otro-valor"_s,
         [](L, D r) {
             return Dada{{r.n[0] + 1, r.n[1]}};
         }},
        {u"euclides.bezout"_s, u"cuantos"_s, [](L, D r) { return una(r.n[0]); }},
        {u"euclides.restosminimos"_s, u"signos"_s,
         [](L, D r) {
             Dada sin = r;
             for (qint64 &n : sin.n)
                 n = std::abs(n);
             return sin;
         }},
        {u"euclides.restosminimos"_s, u"ordinarios"_s,
         [](L e, D) { return Dada{divisiones(e.n[1], e.n[2], false, false, true)}; }},
        {u"euclides.mcm"_s, u"producto"_s, [](L e, D) { return una(e.n[0] * e.n[1]); }},
        {u"euclides.mcm"_s, u"mcd"_s, [](L e, D) { return una(std::gcd(e.n[0], e.n[1])); }},
        {u"euclides.mcm"_s, u"multiplo"_s, [](L e, D r) { return una(r.n[0] * (2 * e.n[0] + 1)); }},
        {u"euclides.mcm"_s, u"no-multiplo"_s, [](L, D r) { return una(r.n[0] + 1); }},
        {u"euclides.soluble"_s, u"insoluble"_s,
         [](L e, D) { return e.nivel == 1 ? palabra(u"sí"_s) : Dada{}; }},
        {u"euclides.soluble"_s, u"soluble"_s,
         [](L e, D) { return e.nivel == 1 ? palabra(u"no"_s) : Dada{}; }},
        {u"euclides.soluble"_s, u"faltan"_s,
         [](L, D r) { return r.n.size() < 2 ? Dada{} : Dada{r.n.first(r.n.size() - 1)}; }},
        {u"euclides.soluble"_s, u"sobra"_s,
         [](L e, D) { return e.nivel == 1 ? Dada{} : Dada{e.n.sliced(2)}; }},
        {u"euclides.soluble"_s, u"fuera"_s, [](L e, D) { return e.nivel == 1 ? Dada{} : una(1); }},
        {u"euclides.general"_s, u"inicio"_s,
         [](L, D r) {
             return Dada{{r.n[0] + 1, r.n[1], r.n[2], r.n[3]}};
         }},
        {u"euclides.general"_s, u"paso"_s,
         [](L, D r) {
             return Dada{{r.n[0], r.n[1], r.n[2], -r.n[3]}};
         }},
        {u"euclides.general"_s, u"una-sola"_s,
         [](L, D r) {
             return Dada{{r.n[0], 0, r.n[2], 0}};
         }},
        {u"euclides.general"_s, u"sin-dividir"_s,
         [](L, D r) {
             return Dada{{r.n[0], 2 * r.n[1], r.n[2], 2 * r.n[3]}};
         }},
        {u"euclides.positivas"_s, u"enteras"_s, [](L, D) { return palabra(u"infinitas"_s); }},
        {u"euclides.positivas"_s, u"con-ceros"_s,
         [](L e, D r) {
             return una(r.n[0] + (e.n[4] % e.n[2] == 0 ? 1 : 0) + (e.n[4] % e.n[3] == 0 ? 1 : 0));
         }},
        {u"euclides.positivas"_s, u"otra-cuenta"_s, [](L, D r) { return una(r.n[0] + 3); }},
        {u"primos.esprimo"_s, u"por-primo"_s, [](L, D) { return palabra(u"primo"_s); }},
        {u"primos.esprimo"_s, u"sin-divisor"_s, [](L, D) { return palabra(u"compuesto"_s); }},
        {u"primos.esprimo"_s, u"trivial"_s, [](L e, D) { return una(e.n[0]); }},
        {u"primos.esprimo"_s, u"no-divide"_s, [](L e, D) { return una(e.n[0] - 1); }},
        {u"primos.factores"_s, u"exponentes"_s,
         [](L, D r) {
             Dada sin = r;
             for (qsizetype i = 1; i < sin.n.size(); i += 2)
                 sin.n[i] = 1;
             return sin;
         }},
        {u"primos.factores"_s, u"factor-compuesto"_s,
         [](L e, D) {
             return Dada{{e.n[0], 1}};
         }},
        {u"primos.factores"_s, u"uno"_s,
         [](L, D r) {
             return Dada{Numeros{1, 1} + r.n};
         }},
        {u"primos.factores"_s, u"otro-producto"_s, [](L, D r) { return Dada{r.n.sliced(2)}; }},
        {u"primos.siguiente"_s, u"no-mayor"_s, [](L e, D) { return una(e.n[0]); }},
        {u"primos.siguiente"_s, u"lejos"_s, [](L e, D) { return una(2 * e.n[0]); }},
        {u"primos.siguiente"_s, u"compuesto"_s, [](L e, D) { return una(e.n[0] + 1); }},
        {u"primos.siguiente"_s, u"salto"_s,
         [](L, D r) {
             qint64 p = r.n[0] + 1;
             while (!esPrimo(p))
                 ++p;
             return una(p);
         }},
        {u"primos.cuantos"_s, u"cuenta-el-uno"_s,
         [](L e, D r) { return e.nivel < 3 ? una(r.n[0] + 1) : Dada{}; }},
        {u"primos.cuantos"_s, u"impares"_s,
         [](L e, D) { return e.nivel < 3 ? una((e.n[0] + 1) / 2) : Dada{}; }},
        {u"primos.cuantos"_s, u"compuestos"_s,
         [](L e, D r) { return e.nivel < 3 ? una(e.n[0] - r.n[0]) : Dada{}; }},
        {u"primos.divisores"_s, u"cuantos"_s, [](L, D r) { return una(r.n[0]); }},
        {u"primos.divisores"_s, u"exponentes-sin-uno"_s,
         [](L e, D r) {
             const qint64 n = e.n[0];
             return Dada{{porPrimos(
                              n, [n](qint64 p) { return exponente(n, p); }, por),
                          r.n[1]}};
         }},
        {u"primos.divisores"_s, u"sin-exponente"_s,
         [](L e, D r) {
             return Dada{{r.n[0], porPrimos(
                                      e.n[0], [](qint64 p) { return p + 1; }, por)}};
         }},
        {u"primos.divisores"_s, u"sin-el-propio"_s,
         [](L e, D r) {
             return Dada{{r.n[0], r.n[1] - e.n[0]}};
         }},
        {u"primos.divisores"_s, u"suma"_s,
         [](L, D r) {
             return Dada{{r.n[0], r.n[1] + 1}};
         }},
        {u"primos.divisores"_s, u"numero"_s,
         [](L, D r) {
             return Dada{{r.n[0] + 1, r.n[1]}};
         }},
        {u"primos.divisores"_s, u"ambos"_s,
         [](L, D r) {
             return Dada{{r.n[0] + 1, r.n[1] + 1}};
         }},
        {u"primos.ultimodivisor"_s, u"sin-raiz"_s, [](L e, D) { return una(e.n[0] / 2); }},
        {u"primos.ultimodivisor"_s, u"raiz"_s, [](L e, D) { return una(raiz(e.n[0])); }},
        {u"primos.ultimodivisor"_s, u"compuesto"_s, [](L e, D) { return una(2 * raiz(e.n[0])); }},
        {u"primos.ultimodivisor"_s, u"otro"_s, [](L, D) { return una(2); }},
        {u"primos.testigo"_s, u"testigo-negado"_s, [](L, D) { return palabra(u"no"_s); }},
        {u"primos.testigo"_s, u"sin-resto"_s, [](L, D) { return palabra(u"sí"_s); }},
        {u"primos.testigo"_s, u"otro-resto"_s,
         [](L e, D) { return una(potencia(e.n[0], e.n[3], e.n[1]) + 1); }},
        {u"primos.testigo"_s, u"pasa-la-prueba"_s,
         [](L e, D r) {
             return r.palabra.isEmpty() ? Dada{} : una(potencia(e.n[0], e.n[3], e.n[1]));
         }},
        {u"primos.testigo"_s, u"sin-reducir"_s,
         [](L e, D r) { return r.palabra.isEmpty() ? una(r.n[0] + e.n[1]) : Dada{}; }},
        {u"unidades.fi"_s, u"n-menos-uno"_s, [](L e, D) { return una(e.n[0] - 1); }},
        {u"unidades.fi"_s, u"sin-exponente"_s,
         [](L e, D) { return una(porPrimos(e.n[0], menosUno, por)); }},
        {u"unidades.fi"_s, u"no-unidades"_s, [](L e, D r) { return una(e.n[0] - r.n[0]); }},
        {u"unidades.inverso"_s, u"inverso-aditivo"_s, [](L e, D) { return una(-e.n[0]); }},
        {u"unidades.inverso"_s, u"signo"_s, [](L, D r) { return una(-r.n[0]); }},
        {u"unidades.inverso"_s, u"no-da-uno"_s, [](L, D) { return una(1); }},
        {u"unidades.orden"_s, u"fi"_s, [](L e, D) { return una(ordenes(e.n[1]).size()); }},
        {u"unidades.orden"_s, u"multiplo"_s, [](L, D r) { return una(5 * r.n[0]); }},
        {u"unidades.orden"_s, u"no-da-uno"_s, [](L, D) { return una(1); }},
        {u"unidades.orden"_s, u"no-positivo"_s, [](L, D) { return una(0); }},
        {u"unidades.potencia"_s, u"sin-reducir"_s, [](L e, D r) { return una(r.n[0] + e.n[2]); }},
        {u"unidades.potencia"_s, u"exponente-modulo-n"_s,
         [](L e, D) { return una(potencia(e.n[0], e.n[1] % e.n[2], e.n[2])); }},
        {u"unidades.potencia"_s, u"n-menos-uno"_s,
         [](L e, D) { return una(potencia(e.n[0], e.n[1] % (e.n[2] - 1), e.n[2])); }},
        {u"unidades.potencia"_s, u"producto"_s,
         [](L e, D) { return una(e.n[0] * e.n[1] % e.n[2]); }},
        {u"unidades.primitiva"_s, u"si-hay"_s, [](L, D) { return palabra(u"ninguna"_s); }},
        {u"unidades.primitiva"_s, u"no-unidad"_s, [](L, D) { return una(0); }},
        {u"unidades.primitiva"_s, u"orden-menor"_s, [](L, D) { return una(1); }},
        {u"unidades.lambda"_s, u"fi"_s, [](L e, D) { return una(ordenes(e.n[0]).size()); }},
        {u"unidades.lambda"_s, u"sin-exponente"_s,
         [](L e, D) { return una(porPrimos(e.n[0], menosUno, mcm)); }},
        {u"unidades.lambda"_s, u"multiplo"_s, [](L, D r) { return una(7 * r.n[0]); }},
        {u"unidades.lambda"_s, u"no-todas"_s, [](L, D) { return una(1); }},
        {u"unidades.unidad"_s, u"unidad-negada"_s,
         [](L e, D) { return e.nivel == 1 ? palabra(u"divisor de cero"_s) : Dada{}; }},
        {u"unidades.unidad"_s, u"divisor-negado"_s,
         [](L e, D) { return e.nivel == 1 ? palabra(u"unidad"_s) : Dada{}; }},
        {u"unidades.unidad"_s, u"sin-prueba"_s,
         [](L e, D) { return e.nivel == 1 ? Dada{} : palabra(u"unidad"_s); }},
        {u"unidades.unidad"_s, u"cero"_s,
         [](L e, D) { return e.nivel == 1 ? Dada{} : una(e.n[1]); }},
        {u"unidades.unidad"_s, u"signo"_s,
         [](L e, D r) {
             return e.nivel == 1 || std::gcd(e.n[0], e.n[1]) > 1 ? Dada{} : una(-r.n[0]);
         }},
        {u"unidades.unidad"_s, u"ni-cero-ni-uno"_s,
         [](L e, D) { return e.nivel == 1 ? Dada{} : una(1); }},
        {u"unidades.lineal"_s, u"si-hay"_s, [](L, D) { return palabra(u"ninguna"_s); }},
        {u"unidades.lineal"_s, u"no-cumple"_s, [](L, D) { return una(0); }},
        {u"unidades.lineal"_s, u"faltan"_s,
         [](L, D r) { return r.n.size() < 2 ? Dada{} : una(r.n[0]); }},
        {u"congruencias.dosmodulos"_s, u"no-todas"_s, [](L e, D) { return una(e.n[0]); }},
        {u"congruencias.dosmodulos"_s, u"ninguna"_s, [](L, D r) { return una(r.n[0] + 1); }},
        {u"congruencias.tresmodulos"_s, u"no-todas"_s,
         [](L e, D r) { return una(r.n[0] + e.n[1] * e.n[3]); }},
        {u"congruencias.tresmodulos"_s, u"ninguna"_s, [](L, D r) { return una(r.n[0] + 1); }},
        {u"congruencias.nocoprimos"_s, u"sin-porque"_s, [](L, D) { return palabra(u"no"_s); }},
        {u"congruencias.nocoprimos"_s, u"cuantos"_s,
         [](L, D) {
             return Dada{{1, 2, 3}};
         }},
        {u"congruencias.nocoprimos"_s, u"no-divide"_s,
         [](L e, D) { return una(e.n[1] * e.n[3] * 4); }},
        {u"congruencias.nocoprimos"_s, u"no-prueba"_s, [](L, D) { return una(-1); }},
        {u"congruencias.nocoprimos"_s, u"sin-periodo"_s,
         [](L, D r) { return r.n.size() == 1 ? Dada{} : una(r.n[0]); }},
        {u"congruencias.nocoprimos"_s, u"no-cumple"_s,
         [](L e, D) {
             return Dada{{e.n[0], e.n[1]}};
         }},
        {u"congruencias.nocoprimos"_s, u"producto"_s,
         [](L e, D r) {
             return r.n.size() == 1 ? Dada{} : Dada{{r.n[0], e.n[1] * e.n[3]}};
         }},
        {u"congruencias.nocoprimos"_s, u"periodo"_s,
         [](L, D r) {
             return r.n.size() == 1 ? Dada{} : Dada{{r.n[0], 1}};
         }},
        {u"congruencias.minimo"_s, u"no-cumple"_s, [](L, D r) { return una(r.n[0] + 1); }},
        {u"congruencias.minimo"_s, u"no-mayor"_s,
         [](L e, D) { return e.nivel == 1 ? una(e.n[1]) : Dada{}; }},
        {u"congruencias.minimo"_s, u"no-menor"_s,
         [](L e, D r) {
             return e.nivel == 1 ? una(r.n[0] + e.n[2] * e.n[3])
                                 : una(r.n[0] + e.n[1] * e.n[2] * e.n[3]);
         }},
        {u"congruencias.potencia"_s, u"sin-reducir"_s,
         [](L e, D r) { return una(r.n[0] + e.n[2]); }},
        {u"congruencias.potencia"_s, u"producto"_s,
         [](L e, D) { return una(e.n[0] * e.n[1] % e.n[2]); }},
        {u"congruencias.potencia"_s, u"una-parte"_s,
         [](L e, D r) { return una(mod(r.n[0] + e.n[4], e.n[2])); }},
        {u"congruencias.potencia"_s, u"otro"_s,
         [](L e, D r) { return una(mod(r.n[0] + 1, e.n[2])); }},
        {u"congruencias.problema"_s, u"fuera"_s,
         [](L e, D r) { return una(r.n[0] + e.n.constLast()); }},
        {u"congruencias.problema"_s, u"no-todas"_s, [](L e, D r) { return una(r.n[0] + e.n[0]); }},
        {u"congruencias.problema"_s, u"ninguna"_s, [](L, D r) { return una(r.n[0] + 1); }}};
    return todos;
}

} // namespace

void tst_BancoAlgebra::elJuezSabeLoQueEsCierto_data()
{
    QTest::addColumn<QString>("clave");
    for (const auto &[clave, esBuena] : definiciones())
        QTest::newRow(qPrintable(clave)) << clave;
}

void tst_BancoAlgebra::elJuezSabeLoQueEsCierto()
{
    QFETCH(QString, clave);
    const TipoDeEjercicio *tipo = tipoDeEjercicio(clave);
    QVERIFY(tipo);
    const EsBuena esBuena = definicion(clave);
    Sorteo azar(5);
    int rechazadas = 0;
    for (int i = 0; i < Niveles * Sorteos; ++i) {
        const auto [ejercicio, leido] = sortea(*tipo, 1 + i % Niveles, i);
        const Dada buena = esperada(ejercicio), mala = alterada(buena, ejercicio, azar);
        QVERIFY2(esBuena(leido, buena) && ejercicio.juzga(buena.leida()).acertada,
                 qPrintable(leido.texto + u" — "_s + ejercicio.esperada));
        const Fallo fallo = ejercicio.juzga(mala.leida());
        QVERIFY2(fallo.acertada == esBuena(leido, mala) && !fallo.palabra.isEmpty(),
                 qPrintable(u"%1 — %2%3: %4"_s.arg(leido.texto, mala.leida().numeros.join(u", "_s),
                                                   mala.palabra, fallo.palabra)));
        rechazadas += fallo.acertada ? 0 : 1;
    }
    QVERIFY2(rechazadas >= 20, qPrintable(cifras(rechazadas)));
}

void tst_BancoAlgebra::cadaErrorTieneSuPalabra_data()
{
    QTest::addColumn<int>("indice");
    for (int i = 0; i < errores().size(); ++i)
        QTest::addRow("%s: %s", qPrintable(errores()[i].clave), qPrintable(errores()[i].nota)) << i;
}

void tst_BancoAlgebra::cadaErrorTieneSuPalabra()
{
    QFETCH(int, indice);
    const ErrorTipico &tipico = errores()[indice];
    int cometidos = 0, nombrados = 0;
    for (int i = 0; i < 300; ++i) {
        const auto [ejercicio, leido] = sortea(*tipoDeEjercicio(tipico.clave), 1 + i % Niveles, i);
        const Dada dada = tipico.error(leido, esperada(ejercicio));
        if ((dada.n.isEmpty() && dada.palabra.isEmpty()) || definicion(tipico.clave)(leido, dada))
            continue;
        const Fallo fallo = ejercicio.juzga(dada.leida());
        QVERIFY2(!fallo.acertada, qPrintable(leido.texto));
        ++cometidos;
        nombrados += fallo.nota == tipico.nota ? 1 : 0;
    }
    // Some are another mistake as well, whose word comes first.
    QVERIFY2(nombrados > 5 && nombrados * 3 > cometidos * 2,
             qPrintable(u"%1 of %2"_s.arg(nombrados).arg(cometidos)));
}

/// A number of more than thirty digits is right where it is congruent to a right one, and nowhere
/// else.
void tst_BancoAlgebra::unNumeroLarguisimo()
{
    QFETCH(QString, clave);
    static const QStringList modulares{u"unidades.inverso"_s,         u"unidades.unidad"_s,
                                       u"unidades.primitiva"_s,       u"congruencias.dosmodulos"_s,
                                       u"congruencias.tresmodulos"_s, u"congruencias.nocoprimos"_s};
    for (int i = 0; i < 30; ++i) {
        const auto [ejercicio, leido] = sortea(*tipoDeEjercicio(clave), 1 + i % Niveles, i);
        RespuestaLeida r = esperada(ejercicio).leida();
        if (r.numeros.isEmpty() || ejercicio.forma.clase == FormaDeRespuesta::Solucion)
            continue;
        const bool buena =
            modulares.contains(clave) && (clave != modulares.back() || r.numeros.size() == 2);
        qint64 multiplo = 1;
        for (const qint64 n : leido.n)
            multiplo *= std::max<qint64>(1, n) < 10'000 ? std::max<qint64>(1, n) : 1;
        r.numeros[0] = cifras(std::abs(multiplo)) +
                       QString(r.numeros[0]).remove(u'-').rightJustified(30, u'0');
        QVERIFY2(ejercicio.juzga(r).acertada == buena,
                 qPrintable(leido.texto + r.numeros.join(u", "_s)));
    }
}

/// Bezout's coefficients and general solutions may be of any size.
void tst_BancoAlgebra::coeficientesLarguisimos()
{
    const auto lejos = [](qint64 n, qint64 paso) {
        return (n < 0 ? u"-"_s : QString()) + cifras(paso) +
               cifras(std::abs(n)).rightJustified(30, u'0');
    };
    for (int i = 0; i < 30; ++i) {
        const auto [ejercicio, leido] =
            sortea(*tipoDeEjercicio(u"euclides.bezout"_s), 1 + i % Niveles, i);
        const Numeros r = esperada(ejercicio).n;
        const QStringList largos{lejos(r[0], leido.n[1]), lejos(r[1], leido.n[0])};
        QVERIFY(ejercicio.juzga({RespuestaLeida::Leida, largos, {}, {}}).acertada);
        QVERIFY(
            !ejercicio.juzga({RespuestaLeida::Leida, {largos[0], cifras(r[1])}, {}, {}}).acertada);
    }
}

QTEST_GUILESS_MAIN(tst_BancoAlgebra)
#include "tst_BancoAlgebra.moc"
