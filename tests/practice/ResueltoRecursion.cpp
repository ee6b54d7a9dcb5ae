// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/HojaDeCalculo.h"
#include "tests/practice/ResueltoAparte.h"
#include "tests/shell/support/RevisorDeFormulas.h"

#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <map>

using namespace Qt::Literals::StringLiterals;

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

/// f(n) = a·f(n − 1) + b·f(n − 2) modulo m, as a statement tells of it from its number i on.
struct Sucesion
{
    qint64 a, b, f1, f2, m;

    Sucesion(const Enunciado &e, int i)
        : a(e.n[i]),
          b(e.texto.contains(u"(n − 1) − "_s) ? -e.n[i + 2] : e.n[i + 2]),
          f1(e.n[i + 5]),
          f2(e.n[i + 7]),
          m(e.n[i + 8])
    {
    }
    Sucesion(qint64 alfa, qint64 beta, qint64 uno, qint64 dos, qint64 modulo)
        : a(alfa), b(beta), f1(uno), f2(dos), m(modulo)
    {
    }

    qint64 resto(qint64 n) const { return (n % m + m) % m; }
    QList<qint64> terminos(int n) const
    {
        QList<qint64> f = {resto(f1), resto(f2)};
        while (f.size() < n)
            f << resto(a * f.back() + b * f[f.size() - 2]);
        return f;
    }
    /// Where the period begins and how long it is, by remembering every pair.
    std::pair<qint64, qint64> periodo() const
    {
        std::map<std::pair<qint64, qint64>, qint64> vistas;
        std::pair<qint64, qint64> pareja{resto(f1), resto(f2)};
        for (qint64 i = 1;; ++i) {
            const auto [donde, nueva] = vistas.emplace(pareja, i);
            if (!nueva)
                return {donde->second, i - donde->second};
            pareja = {pareja.second, resto(a * pareja.second + b * pareja.first)};
        }
    }
};

/// Whether no two pairs lead to the same one.
bool todasPuras(qint64 alfa, qint64 beta, qint64 m)
{
    QSet<qint64> siguientes;
    for (qint64 pareja = 0; pareja < m * m; ++pareja) {
        const qint64 b = pareja % m;
        siguientes << b * m + (alfa * b + beta * (pareja / m)) % m;
    }
    return siguientes.size() == m * m;
}

QString periodo(const Enunciado &e, const QString &)
{
    if (e.nivel == 2)
        return texto(Sucesion(1, 1, 1, 1, e.n[4]).periodo().second);
    const auto [inicio, longitud] = Sucesion(e, 0).periodo();
    return e.nivel == 1 ? texto(longitud) : lista({inicio, longitud});
}

QList<Equivocada> periodoMal(const Enunciado &e, const QString &esperada)
{
    if (e.nivel < 3)
        return {{texto(2 * esperada.toLongLong()), {}},
                {texto(e.nivel == 2 ? e.n[4] : e.n[8]), {}}};
    const QStringList dos = esperada.split(u", "_s);
    return {{dos[1] + u", "_s + dos[0], {}},
            {texto(dos[0].toInt() - 1) + u", "_s + dos[1], u"entrada"_s}};
}

QString puramente(const Enunciado &e, const QString &)
{
    if (e.nivel == 1)
        return todasPuras(e.n[0], e.n[2], e.n[4]) ? u"sí"_s : u"no"_s;
    if (e.nivel == 2)
        return Sucesion(e, 0).periodo().first == 1 ? u"sí"_s : u"no"_s;
    qint64 cuantos = 0;
    for (qint64 beta = 1; beta <= e.n[2]; ++beta)
        cuantos += todasPuras(1, beta, e.n[2]) ? 1 : 0;
    return texto(cuantos);
}

QString moduloOculto(const Enunciado &e, const QString &)
{
    if (e.nivel == 2) {
        const qint64 p = e.n[0];
        QStringList halladas;
        for (qint64 i = 0; i < p * p; ++i) {
            if (Sucesion(i / p, i % p, e.n[3], e.n[4], p).terminos(4) == e.n.sliced(3, 4))
                halladas << lista({i / p, i % p});
        }
        return halladas.join(u" / "_s);
    }
    QList<qint64> halladas;
    const qint64 menor = e.nivel == 1 ? 1 : *std::max_element(e.n.begin() + 4, e.n.end()) + 1;
    for (qint64 m = menor; m < 500; ++m) {
        bool cuadra = true;
        if (e.nivel == 1) {
            for (int i = 0; i < 3; ++i)
                cuadra = cuadra && e.n[3 * i + 1] % m == e.n[3 * i + 2];
        } else {
            const QList<qint64> f = e.n.sliced(4);
            cuadra = Sucesion(e.n[0], e.n[2], f[0], f[1], m).terminos(5) == f;
        }
        if (cuadra)
            halladas << m;
    }
    return e.nivel == 1 ? lista(halladas) : texto(halladas.back());
}

qint64 ack(qint64 m, qint64 n)
{
    if (m == 0)
        return n + 1;
    return ack(m - 1, n == 0 ? 1 : ack(m, n - 1));
}

QString ackermann(const Enunciado &e, const QString &)
{
    return texto(e.nivel < 3 ? ack(e.n[0], e.n[1]) : ack(e.n[0], ack(e.n[1], e.n[2])));
}

QString granizo(const Enunciado &e, const QString &)
{
    QList<qint64> valores = {e.n[0]};
    while (valores.back() != 1)
        valores << (valores.back() % 2 == 1 ? 3 * valores.back() + 1 : valores.back() / 2);
    const qint64 mayor = *std::max_element(valores.begin(), valores.end());
    const auto menor =
        std::find_if(valores.begin(), valores.end(), [&](qint64 v) { return v < valores.front(); });
    if (e.nivel == 1)
        return texto(valores.size() - 1);
    return lista({e.nivel == 2 ? valores.size() - 1 : menor - valores.begin(), mayor});
}

QString palindromo(const Enunciado &e, const QString &)
{
    const auto alReves = [](qint64 n) {
        qint64 r = 0;
        for (; n > 0; n /= 10)
            r = r * 10 + n % 10;
        return r;
    };
    qint64 n = e.n[0];
    qint64 sumas = 0;
    do {
        n += alReves(n);
        ++sumas;
    } while (n != alReves(n));
    return e.nivel == 1 ? texto(sumas) : lista({sumas, n});
}

/// Whether the calls of f(n), as they stand in its rule, all end at a natural number with a value.
bool acaba(const QStringList &argumentos, qint64 n, qint64 base, int hondo)
{
    if (n < 0 || n > 1'000'000'000 || hondo > 60)
        return false;
    if (n <= base)
        return true;
    static const QRegularExpression numeros(u"\\d+"_s);
    for (const QString &argumento : argumentos) {
        const qint64 k = numeros.match(argumento).captured().toLongLong();
        const qint64 siguiente = argumento.contains(u'⌊') ? n / k
                                 : argumento.contains(u"n − "_s) && argumento.front() != u'n'
                                     ? k * n - k
                                 : argumento.contains(u'−') ? n - k
                                 : argumento.contains(u'+') ? n + k
                                                            : n;
        if (!acaba(argumentos, siguiente, base, hondo + 1))
            return false;
    }
    return true;
}

QString definida(const QString &enunciado)
{
    static const QRegularExpression llamada(u"f\\(([^()]*)\\)"_s);
    const QString regla = enunciado.section(u"f(n) ="_s, 1);
    QStringList argumentos;
    for (auto i = llamada.globalMatch(regla); i.hasNext();)
        argumentos << i.next().captured(1);
    for (qint64 n = 0; n < 13; ++n) {
        if (!acaba(argumentos, n, enunciado.contains(u"f(1) ="_s) ? 1 : 0, 0))
            return u"no"_s;
    }
    return u"sí"_s;
}

QString definicion(const Enunciado &e, const QString &)
{
    if (e.nivel == 2)
        return definida(e.texto);
    if (e.nivel == 1) {
        qint64 f = e.n[1];
        for (qint64 i = 0; i < e.n[5]; ++i)
            f = e.n[2] * f + (e.texto.contains(u"1) −"_s) ? -e.n[4] : e.n[4]);
        return texto(f);
    }
    const std::function<qint64(qint64)> f = [&](qint64 n) -> qint64 {
        return n == 0 ? 0 : f(n / e.n[3]) + (e.texto.contains(u"mod"_s) ? n % e.n[4] : e.n[4]);
    };
    return texto(f(e.n.back()));
}

QString exacto(const QString &expresion)
{
    const RevisorDeFormulas revisor;
    const auto valor = revisor.valor(Formula(QString(expresion).replace(u";"_s, u"; "_s)).raiz());
    return valor ? QString::fromStdString(valor->get_str()) : QString();
}

QString celda(const Enunciado &e, const QString &)
{
    static const QRegularExpression escrita(u"«([^»]+)»"_s);
    const QString expresion = escrita.match(e.texto).captured(1);
    if (e.nivel < 3)
        return exacto(expresion);
    HojaDeCalculo hoja;
    hoja.finDeEdicion({1, 1}, texto(e.n[1]));
    const Celda donde{1, 2};
    if (!expresion.isEmpty()) {
        hoja.finDeEdicion(donde, expresion);
        return hoja.Resultados(donde.fila, donde.columna);
    }
    static const QRegularExpression a2(u"A2, ([^.]+)\\."_s);
    static const QRegularExpression a1(u"A1 por (\\d+)"_s);
    static const QRegularExpression a3(u"se escribe (\\(A1[^,]+),"_s);
    hoja.finDeEdicion({2, 1}, a2.match(e.texto).captured(1));
    hoja.finDeEdicion({1, 1}, a1.match(e.texto).captured(1));
    hoja.finDeEdicion({3, 1}, a3.match(e.texto).captured(1));
    return hoja.Resultados(3, 1);
}

/// Many formulas are right: the expected one is computed row by row.
QString formula(const Enunciado &e, const QString &esperada)
{
    static const QRegularExpression columna(u"columna B, ([^.]+)\\."_s);
    QStringList valores;
    for (int n = 1; n <= 6; ++n)
        valores << exacto(QString(esperada).replace(u"A1"_s, u"(%1)"_s.arg(n)));
    return columna.match(e.texto).captured(1) == valores.join(u"; "_s) ? esperada : QString();
}

} // namespace

QList<Resuelto> resueltosDeRecursion()
{
    return {
        {u"modular.siguientes"_s,
         [](const auto &e, const auto &) { return lista(Sucesion(e, 1).terminos(8)); },
         [](const auto &e, const QString &esperada) {
             Sucesion cambiada(e, 1);
             std::swap(cambiada.a, cambiada.b);
             return QList<Equivocada>{
                 {lista(cambiada.terminos(8)), u"cambiados"_s},
                 {texto(e.n[6] + e.n[9]) + esperada.sliced(texto(e.n[6]).size()), u"sin-reducir"_s},
                 {esperada.section(u", "_s, 0, 6), u"cuantos"_s}};
         }},
        {u"modular.periodo"_s, periodo, periodoMal},
        {u"modular.puramente"_s, puramente,
         [](const auto &e, const QString &esperada) {
             if (e.nivel == 3)
                 return QList<Equivocada>{{texto(e.n[2]), u"todos"_s},
                                          {texto(e.n[2] - 1), u"no-nulos"_s},
                                          {texto(esperada.toInt() - 1), u"sin-el-1"_s}};
             return QList<Equivocada>{{esperada == u"sí"_s ? u"no"_s : u"sí"_s, {}}};
         }},
        {u"modular.modulo"_s, moduloOculto,
         [](const auto &e, const QString &esperada) {
             const QStringList dos = esperada.split(u", "_s);
             if (e.nivel == 2)
                 return QList<Equivocada>{{dos[1] + u", "_s + dos[0], u"cambiados"_s},
                                          {dos[0], u"cuantos"_s}};
             return QList<Equivocada>{{u"1"_s, u"resto-mayor"_s}, {u"0"_s, {}}};
         }},
        {u"funciones.ackermann"_s, ackermann,
         [](const auto &e, const auto &) {
             if (e.nivel == 3)
                 return QList<Equivocada>{{texto(ack(e.n[1], e.n[2])), u"solo-dentro"_s},
                                          {texto(ack(e.n[0], e.n[2])), u"solo-fuera"_s}};
             return QList<Equivocada>{{texto(ack(e.n[0], e.n[1] - 1)), {}},
                                      {texto(ack(e.n[0] - 1, e.n[1])), {}}};
         }},
        {u"funciones.granizo"_s, granizo,
         [](const auto &e, const QString &esperada) {
             const QStringList dos = esperada.split(u", "_s);
             const QString mas = texto(dos[0].toInt() + 1);
             if (e.nivel == 1)
                 return QList<Equivocada>{{mas, u"cuenta-numeros"_s},
                                          {texto(dos[0].toInt() - 1), u"sin-el-ultimo"_s}};
             return QList<Equivocada>{{mas + u", "_s + dos[1], {}},
                                      {dos[1] + u", "_s + dos[0], u"orden"_s}};
         }},
        {u"funciones.palindromo"_s, palindromo,
         [](const auto &e, const QString &esperada) {
             const QString cola = esperada.sliced(esperada.section(u", "_s, 0, 0).size());
             const int sumas = esperada.section(u", "_s, 0, 0).toInt();
             QList<Equivocada> mal = {{texto(sumas + 1) + cola, u"cuenta-numeros"_s},
                                      {texto(sumas - 1) + cola, u"una-menos"_s}};
             if (e.nivel > 1)
                 mal << Equivocada{cola.sliced(2) + u", "_s + texto(sumas), u"orden"_s};
             return mal;
         }},
        {u"funciones.definicion"_s, definicion,
         [](const auto &e, const QString &esperada) {
             if (e.nivel == 2)
                 return QList<Equivocada>{{esperada == u"sí"_s ? u"no"_s : u"sí"_s, {}}};
             return QList<Equivocada>{{texto(esperada.toLongLong() + 1000), u"mal"_s}};
         }},
        {u"minical.celda"_s, celda,
         [](const auto &, const QString &esperada) {
             const QStringList partes = (esperada + u"/1"_s).split(u'/');
             return QList<Equivocada>{
                 {u"Error"_s, u"error"_s},
                 {texto(3 * partes[0].toLongLong()) + u'/' + texto(3 * partes[1].toLongLong()),
                  u"sin-reducir"_s}};
         }},
        {u"minical.formula"_s, formula, [](const auto &, const QString &esperada) {
             return QList<Equivocada>{{u"7"_s, u"sin-la-celda"_s},
                                      {u"A1/(A1-1)"_s, u"da-error"_s},
                                      {QString(esperada).replace(u"A1"_s, u"(A1+1)"_s), {}},
                                      {esperada + u"+A1-1"_s, u"solo-el-primero"_s}};
         }}};
}
