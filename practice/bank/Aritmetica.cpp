// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/Aritmetica.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <QHash>
#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

const QList<qint64> &primosPequenos()
{
    static const QList<qint64> primos = [] {
        constexpr std::size_t Limite = 12'000;
        std::vector<bool> compuesto(Limite);
        QList<qint64> hallados;
        for (std::size_t n = 2; n < Limite; ++n) {
            if (compuesto[n])
                continue;
            hallados << static_cast<qint64>(n);
            for (std::size_t m = n * n; m < Limite; m += n)
                compuesto[m] = true;
        }
        return hallados;
    }();
    return primos;
}

bool esPrimoPequeno(qint64 n)
{
    return std::binary_search(primosPequenos().begin(), primosPequenos().end(), n);
}

qint64 primoEntre(qint64 a, qint64 b, Sorteo &sorteo)
{
    const auto &primos = primosPequenos();
    const auto desde = std::lower_bound(primos.begin(), primos.end(), a) - primos.begin();
    const auto hasta = std::upper_bound(primos.begin(), primos.end(), b) - primos.begin();
    return primos[sorteo.entre(desde, hasta - 1)];
}

qint64 PotenciaDePrimo::valor() const
{
    qint64 producto = 1;
    for (int i = 0; i < exponente; ++i)
        producto *= primo;
    return producto;
}

Factores factoresConPotencia(const QList<qint64> &primos, int cuantos, int mayor, Sorteo &sorteo)
{
    QList<qint64> bases = sorteo.barajada(primos).first(cuantos);
    std::sort(bases.begin(), bases.end());
    Factores factores;
    for (const qint64 p : bases)
        factores.append({p, static_cast<int>(sorteo.entre(1, mayor))});
    ++factores[sorteo.entre(0, cuantos - 1)].exponente;
    return factores;
}

Factores factoresDe(qint64 n)
{
    Factores factores;
    for (qint64 p = 2; p * p <= n; ++p) {
        int exponente = 0;
        for (; n % p == 0; n /= p)
            ++exponente;
        if (exponente > 0)
            factores.append({p, exponente});
    }
    if (n > 1)
        factores.append({n, 1});
    return factores;
}

qint64 productoDe(const Factores &factores)
{
    return std::accumulate(
        factores.begin(), factores.end(), qint64(1),
        [](qint64 producto, const PotenciaDePrimo &f) { return producto * f.valor(); });
}

qint64 fiDe(const Factores &factores)
{
    qint64 fi = 1;
    for (const PotenciaDePrimo &f : factores)
        fi *= f.valor() / f.primo * (f.primo - 1);
    return fi;
}

qint64 lambdaDe(const Factores &factores)
{
    qint64 lambda = 1;
    for (const PotenciaDePrimo &f : factores) {
        const qint64 fi = fiDe({f});
        lambda = std::lcm(lambda, f.primo == 2 && f.exponente > 2 ? fi / 2 : fi);
    }
    return lambda;
}

QString enFormula(const Factores &factores)
{
    QStringList potencias;
    for (const PotenciaDePrimo &f : factores)
        potencias << QString::number(f.primo) +
                         (f.exponente > 1 ? u'^' + QString::number(f.exponente) : QString());
    return potencias.join(u'*');
}

const GrupoUnidades &grupoDe(qint64 n)
{
    static QHash<qint64, GrupoUnidades> grupos;
    auto hallado = grupos.constFind(n);
    if (hallado == grupos.constEnd())
        hallado = grupos.insert(n, GrupoUnidades(static_cast<std::int32_t>(n)));
    return *hallado;
}

qint64 unidadDe(qint64 n, Sorteo &sorteo, qint64 menorOrden)
{
    QList<qint64> unidades;
    for (const Unidad &u : grupoDe(n).unidades()) {
        if (u.valor != 1 && u.valor != n - 1 && u.orden >= menorOrden)
            unidades << u.valor;
    }
    return sorteo.de(unidades);
}

qint64 restoPositivo(qint64 a, qint64 n)
{
    return (a % n + n) % n;
}

std::optional<qint64> numeroCorto(const RespuestaLeida &respuesta, qsizetype i)
{
    const QString numero = respuesta.numeros.value(i);
    if (numero.isEmpty() || numero.size() > (numero.startsWith(u'-') ? 10 : 9))
        return {};
    return numero.toLongLong();
}

qint64 restoDe(const QString &numero, qint64 n)
{
    if (numero.size() <= 18)
        return restoPositivo(numero.toLongLong(), n);
    return Modulo(numero, QString::number(n)).toLongLong();
}

QString combinacion(qint64 a, const QString &x, qint64 b, const QString &y)
{
    if (x.size() <= 10 && y.size() <= 10 && std::max(a, b) < 100'000'000)
        return QString::number(a * x.toLongLong() + b * y.toLongLong());
    return calculaEntero(u"(%1)*(%2)+(%3)*(%4)"_s.arg(QString::number(a), x, QString::number(b), y))
        .value_or(QString());
}

Fallo correcto()
{
    return Fallo::bien(Traduce(u"¡Correcto!"_s));
}

Fallo sinReducir(qint64 n)
{
    return Fallo::mal(
        Traduce(u"Es congruente con la solución, pero un resto está entre 0 y %1."_s).arg(n - 1),
        u"sin-reducir"_s);
}

Fallo faltanNumeros(qsizetype pedidos)
{
    return Fallo::mal(Traduce(u"Se piden %1 números."_s).arg(pedidos), u"cuantos"_s);
}

Fallo noEsInverso(qint64 a, qint64 dado, qint64 n)
{
    return Fallo::mal(Traduce(u"%1 · %2 = %3, que es %4 módulo %5, y tendría que ser 1."_s)
                          .arg(a)
                          .arg(dado)
                          .arg(a * dado)
                          .arg(a * dado % n)
                          .arg(n),
                      u"no-da-uno"_s);
}

QString listaDe(const QList<qint64> &numeros)
{
    QStringList lista;
    for (const qint64 n : numeros)
        lista << QString::number(n);
    return lista.join(u", "_s);
}

QString trasSigno(qint64 n)
{
    return n < 0 ? u"(%1)"_s.arg(n) : QString::number(n);
}

Paso pasoCon(const QString &frase, const QStringList &formulas)
{
    Paso paso{frase};
    for (const QString &formula : formulas)
        paso.formulas << Formula(formula);
    return paso;
}

Pasos seguidos(const Pasos &antes, const QList<Paso> &despues)
{
    return Pasos::seguidos({antes, Pasos(despues)});
}
