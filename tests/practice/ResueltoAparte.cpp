// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/practice/ResueltoAparte.h"

#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/OtrasEntradas.h"

#include <QRegularExpression>
#include <bit>

using namespace Qt::Literals::StringLiterals;

Enunciado::Enunciado(const QString &t, int elNivel) : texto(t), nivel(elNivel)
{
    qint64 numero = -1;
    for (const QChar c : texto + u' ') {
        const int cifra = c.isDigit() && c.unicode() < 128 ? c.digitValue() : -1;
        if (cifra >= 0)
            numero = (numero < 0 ? 0 : numero * 10) + cifra;
        else if (numero >= 0) {
            n << numero;
            numero = -1;
        }
    }
}

namespace {

QString texto(qint64 n)
{
    return QString::number(n);
}

QString lista(const QList<qint64> &numeros)
{
    QStringList textos;
    for (const qint64 n : numeros)
        textos << texto(n);
    return textos.join(u", "_s);
}

/// By multiplying, one factor after the other.
qint64 elevado(qint64 b, qint64 e, qint64 m)
{
    qint64 r = 1;
    for (; e > 0; --e)
        r = r * b % m;
    return r;
}

/// The t with s·t = 1 + k·φ for the least k.
qint64 privado(qint64 s, qint64 fi)
{
    qint64 k = 1;
    while ((1 + k * fi) % s != 0)
        ++k;
    return (1 + k * fi) / s;
}

qint64 factorDe(qint64 q)
{
    qint64 p = 2;
    while (q % p != 0)
        ++p;
    return p;
}

struct Clave
{
    qint64 p, r, s;
    qint64 q() const { return p * r; }
    qint64 fi() const { return (p - 1) * (r - 1); }
    qint64 t() const { return privado(s, fi()); }
};

Clave claveT(const Enunciado &e)
{
    return {e.n[1], e.n[3], e.n[4]};
}

Clave claveCifra(const Enunciado &e)
{
    const qint64 p = factorDe(e.n[0]);
    return {p, e.n[0] / p, e.n[1]};
}

Clave claveDescifra(const Enunciado &e)
{
    return e.nivel == 3 ? claveT(e) : Clave{e.n[0], e.n[1], e.n[3]};
}

QList<Equivocada> alElevar(const Clave &k, qint64 base, qint64 exponente, qint64 otro)
{
    return {{texto(base * exponente % k.q()), u"producto"_s},
            {texto(elevado(base, exponente, k.q()) + k.q()), u"sin-reducir"_s},
            {texto(elevado(base, otro, k.q())), u"otra-clave"_s},
            {texto(elevado(base, exponente, k.fi())), u"modulo-fi"_s},
            {texto(base), u"sin-elevar"_s}};
}

QString bloques(const Enunciado &e, const QString &)
{
    if (e.nivel == 1)
        return texto((e.n[0] + e.n[1] - 1) / e.n[1]);
    if (e.nivel == 3) {
        int r = 0;
        for (qint64 tope = 255; tope < qMin(e.n[0], e.n[1]); tope = tope * 1000 + 255)
            ++r;
        const auto q = static_cast<std::uint64_t>(e.n[0]) * static_cast<std::uint64_t>(e.n[1]);
        return lista({static_cast<qint64>(std::bit_width(q)), r});
    }
    static const QRegularExpression palabra(u"texto (\\w+),"_s);
    const QString letras = palabra.match(e.texto).captured(1);
    QString primero;
    for (const QChar letra : letras.first(e.n[0])) {
        const QRegularExpression codigo(u"%1 = (\\d+)"_s.arg(letra));
        primero += codigo.match(e.texto).captured(1).rightJustified(3, u'0');
    }
    return lista({(letras.size() + e.n[0] - 1) / e.n[0], primero.toLongLong()});
}

QList<Equivocada> bloquesMal(const Enunciado &e, const QString &esperada)
{
    const QStringList dos = esperada.split(u", "_s);
    if (e.nivel == 1)
        return {{texto(e.n[0] / e.n[1] + (e.n[0] % e.n[1] == 0 ? 1 : 0)), u"ultimo-bloque"_s},
                {texto(e.n[0] * e.n[1]), u"producto"_s},
                {texto(3 * e.n[0]), u"cifras"_s}};
    QList<Equivocada> mal = {{dos[1] + u", "_s + dos[0], u"orden"_s}};
    if (e.nivel == 3)
        mal << Equivocada{lista({dos[0].toLongLong() - 1, dos[1].toLongLong()}), {}}
            << Equivocada{lista({dos[0].toLongLong(), dos[1].toLongLong() + 1}), u"r-grande"_s};
    return mal;
}

qint64 fib(qint64 n)
{
    return CalculaFibonacci(ViaDeFibonacci::Iteracion, static_cast<int>(n), 1).valor.toLongLong();
}

/// By doubling, modulo m, from the highest binary digit on.
qint64 fibModulo(qint64 n, qint64 m)
{
    qint64 a = 0;
    qint64 b = 1;
    for (int bit = 40; bit >= 0; --bit) {
        const qint64 par = a * (2 * b - a + m) % m;
        const qint64 impar = (a * a + b * b) % m;
        const bool uno = (n >> bit) & 1;
        a = uno ? impar : par;
        b = uno ? (par + impar) % m : impar;
    }
    return (a % m + m) % m;
}

QString porAvaricia(const Enunciado &e, const QString &)
{
    QStringList sumandos;
    qint64 queda = e.n[0];
    for (int i = 30; i > 1; --i) {
        if (fib(i) <= queda) {
            sumandos << texto(fib(i));
            queda -= fib(i);
        }
    }
    return sumandos.join(u" + "_s);
}

QString sumaDeFib(const Enunciado &e, const QString &)
{
    const bool cuadrados = e.texto.contains(u'²');
    qint64 suma = 0;
    for (qint64 i = e.n[0]; i <= e.n[2]; i += e.n[1] - e.n[0])
        suma += cuadrados ? fib(i) * fib(i) : fib(i);
    return texto(suma);
}

} // namespace

QList<Resuelto> resueltosDeCifrado()
{
    return {
        {u"rsa.t"_s, [](const auto &e, const auto &) { return texto(claveT(e).t()); },
         [](const auto &e, const auto &) {
             const Clave k = claveT(e);
             return QList<Equivocada>{{texto(k.fi() - k.t()), u"signo"_s},
                                      {texto(k.fi() - k.s), u"inverso-aditivo"_s},
                                      {texto(k.fi() + k.t()), u"sin-reducir"_s},
                                      {texto(k.t() - k.fi()), u"sin-reducir"_s}};
         }},
        {u"rsa.cifra"_s,
         [](const auto &e, const auto &) { return texto(elevado(e.n[2], e.n[1], e.n[0])); },
         [](const auto &e, const auto &) {
             const Clave k = claveCifra(e);
             return alElevar(k, e.n[2], k.s, k.t());
         }},
        {u"rsa.descifra"_s,
         [](const auto &e, const auto &) {
             const Clave k = claveDescifra(e);
             return PotenciaMod(texto(e.n.back()), texto(k.t()), texto(k.q()));
         },
         [](const auto &e, const auto &) {
             const Clave k = claveDescifra(e);
             return alElevar(k, e.n.back(), k.t(), k.s);
         }},
        {u"rsa.primosdefi"_s,
         [](const auto &e, const auto &) {
             const qint64 p = factorDe(e.n[0]);
             return (p - 1) * (e.n[0] / p - 1) == e.n[1] ? lista({p, e.n[0] / p}) : QString();
         },
         [](const auto &e, const auto &) {
             const qint64 p = factorDe(e.n[0]);
             const qint64 r = e.n[0] / p;
             return QList<Equivocada>{{lista({p - 1, r - 1}), u"menos-1"_s},
                                      {lista({r + p, r - p}), u"suma-y-diferencia"_s},
                                      {lista({p + 1, r - 1}), {}},
                                      {texto(p), u"cuantos"_s}};
         }},
        {u"rsa.rompe"_s,
         [](const auto &e, const auto &) {
             const Clave k = claveCifra(e);
             return lista({k.p, k.r, k.t()});
         },
         [](const auto &e, const auto &) {
             const Clave k = claveCifra(e);
             return QList<Equivocada>{{lista({k.p, k.r, k.fi() - k.t()}), {}},
                                      {lista({k.p, k.r}), u"cuantos"_s},
                                      {lista({1, k.q(), k.t()}), u"primos"_s},
                                      {lista({k.t(), k.p, k.r}), u"primos"_s}};
         }},
        {u"rsa.bloques"_s, bloques, bloquesMal},
        {u"fibonacci.zeckendorf"_s, porAvaricia,
         [](const auto &, const QString &esperada) {
             return QList<Equivocada>{{esperada + u" + 0"_s, u"cero"_s},
                                      {esperada + u" + 1 - 1"_s, {}},
                                      {esperada + u" + 4"_s, u"no-fibonacci"_s},
                                      {esperada + u" + 610"_s, {}},
                                      {esperada + u" + 6765 + 4181"_s, u"consecutivos"_s}};
         }},
        {u"fibonacci.mcd"_s,
         [](const auto &e, const auto &) {
             const auto grande = [](qint64 n) {
                 return CalculaFibonacci(ViaDeFibonacci::Iteracion, static_cast<int>(n), 1).valor;
             };
             return Mcd(grande(e.n[0]), grande(e.n[1]));
         },
         [](const auto &e, const auto &) {
             return QList<Equivocada>{
                 {Mcd(texto(e.n[0]), texto(e.n[1])), u"indice"_s},
                 {u"1"_s, u"coprimos"_s},
                 {u"F(%1)"_s.arg(qMin(e.n[0], e.n[1])), {}},
                 {u"F(%1)"_s.arg(Mcd(texto(e.n[0]), texto(e.n[1])).toLongLong() + 1), {}}};
         }},
        {u"fibonacci.doblado"_s,
         [](const auto &e, const auto &) {
             return lista({fib(e.n[4]), fib(e.n[5])});
         },
         [](const auto &e, const auto &) {
             return QList<Equivocada>{{lista({2 * e.n[1], 2 * e.n[3]}), u"dobla-valor"_s},
                                      {lista({e.n[1] * e.n[1], e.n[3] * e.n[3]}), u"cuadrados"_s},
                                      {lista({fib(e.n[5]), fib(e.n[5] + 1)}), u"un-lugar"_s}};
         }},
        {u"fibonacci.modulo"_s,
         [](const auto &e, const auto &) { return texto(fibModulo(e.n[0], e.n[1])); },
         [](const auto &e, const auto &) {
             return QList<Equivocada>{{texto(fibModulo(e.n[0], e.n[1]) + e.n[1]), u"sin-reducir"_s},
                                      {texto(e.n[0] % e.n[1]), u"resto-del-indice"_s},
                                      {texto(fibModulo(e.n[0] % e.n[1], e.n[1])), {}},
                                      {texto(fibModulo(e.n[0], e.n[1]) - e.n[1]), {}}};
         }},
        {u"fibonacci.sumas"_s, sumaDeFib, [](const auto &e, const QString &esperada) {
             const qint64 suma = esperada.toLongLong();
             return QList<Equivocada>{{texto(suma + 1), u"falta-1"_s},
                                      {texto(suma - 1), u"falta-1"_s},
                                      {texto(fib(e.n[2])), {}}};
         }}};
}
