#include "lessons/congruences/SistemaCongruencias.h"

#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int BitsDelPrimero = 3;

bool esEntero(const QString &texto)
{
    static const QRegularExpression forma(u"^[+-]?[0-9]+$"_s);
    return forma.match(texto.trimmed()).hasMatch();
}

/// 2k primes, each a bit longer than the one before.
QStringList primosDistintos(int cuantos)
{
    QStringList primos;
    while (primos.size() < cuantos) {
        const auto bits = static_cast<std::int16_t>(BitsDelPrimero + primos.size());
        const QString primo = PrimoAleatorio(bits);
        if (!primos.contains(primo))
            primos << primo;
    }
    return primos;
}

} // namespace

bool Congruencia::cuenta() const
{
    return !resto.trimmed().isEmpty() && !modulo.trimmed().isEmpty();
}

bool Congruencia::restoValido() const
{
    return esEntero(resto);
}

bool Congruencia::moduloValido() const
{
    return esEntero(modulo) && EsMayor(u"0"_s, modulo.trimmed());
}

QString Congruencia::defecto() const
{
    if (!restoValido())
        return Traduce(u"El resto tiene que ser un número entero"_s);
    if (!moduloValido())
        return Traduce(u"El módulo tiene que ser un número entero mayor que 0"_s);
    return {};
}

SistemaCongruencias planteaSistema(int k)
{
    // Primes are counted from 1, as p(i) and p(2k - i) are.
    const QStringList p = QStringList(QString()) + primosDistintos(2 * k);
    SistemaCongruencias sistema;
    for (int i = 1; i <= k; ++i) {
        // At most 2k + 4 bits, so it fits 32 for every k that is posed.
        const std::int32_t modulo = p[i].toInt() * p[2 * k - i].toInt();
        sistema << Congruencia{QString::number(AleatorioEntre(1, modulo - 1)),
                               QString::number(modulo)};
    }
    return sistema;
}

SistemaCongruencias filasQueCuentan(const SistemaCongruencias &sistema)
{
    SistemaCongruencias filas;
    std::copy_if(sistema.begin(), sistema.end(), std::back_inserter(filas),
                 [](const Congruencia &fila) { return fila.cuenta(); });
    return filas;
}

QString solucion(const SistemaCongruencias &sistema)
{
    QStringList restos, modulos;
    for (const Congruencia &fila : filasQueCuentan(sistema)) {
        restos << fila.resto.trimmed();
        modulos << fila.modulo.trimmed();
    }
    return RestoChino(restos, modulos);
}

bool esSolucion(const SistemaCongruencias &sistema, const QString &expresion)
{
    return Evalua(QString(expresion), {}, Aritmetica::Entera) == solucion(sistema);
}
