// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/congruences/SistemaCongruencias.h"

#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <QRegularExpression>
#include <algorithm>
#include <optional>

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

/// The counting rows as the service takes them, and where they stand in the grid.
struct Filas
{
    QStringList restos, modulos;
    QList<int> numeros;

    bool tienenSolucionLasPrimeras(int cuantas) const
    {
        return !esError(RestoChino(restos.first(cuantas), modulos.first(cuantas)));
    }
};

Filas filasDe(const SistemaCongruencias &sistema)
{
    Filas filas;
    for (int f = 0; f < sistema.size(); ++f) {
        if (!sistema[f].cuenta())
            continue;
        filas.restos << sistema[f].resto.trimmed();
        filas.modulos << sistema[f].modulo.trimmed();
        filas.numeros << f + 1;
    }
    return filas;
}

/// What two rows ask for modulo the greatest common divisor of their moduli, when that differs.
std::optional<Contradiccion> contradiccion(const Filas &filas, int f, int g)
{
    const QString divisor = Mcd(filas.modulos[f], filas.modulos[g]);
    const QString uno = Modulo(filas.restos[f], divisor);
    const QString otro = Modulo(filas.restos[g], divisor);
    if (uno == otro || esError(uno) || esError(otro))
        return {};
    return Contradiccion{filas.numeros[f], filas.numeros[g], divisor, uno, otro};
}

/// The first row that leaves those up to it without solution, in a system that has none: found by
/// halving, because a thousand rows are half a million pairs to compare.
int filaQueEstropea(const Filas &filas)
{
    int buenas = 0;
    auto malas = static_cast<int>(filas.numeros.size());
    while (malas - buenas > 1) {
        const int mitad = (buenas + malas) / 2;
        (filas.tienenSolucionLasPrimeras(mitad) ? buenas : malas) = mitad;
    }
    return malas - 1;
}

/// Two rows that contradict each other, in a system without solution.
std::optional<Contradiccion> contradiccion(const Filas &filas)
{
    const int ultima = filaQueEstropea(filas);
    for (int f = 0; f < ultima; ++f) {
        if (auto pareja = contradiccion(filas, f, ultima))
            return pareja;
    }
    return {};
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

QString Contradiccion::texto() const
{
    constexpr qsizetype cifrasQueSeLeen = 20;
    const QString motivo = Traduce(u"Las filas %1 y %2 se contradicen"_s).arg(fila1).arg(fila2);
    if (divisor.size() > cifrasQueSeLeen)
        return motivo + u'.';
    return motivo + Traduce(u" módulo %1: piden los restos %2 y %3."_s)
                        .arg(formatoEntero(divisor), formatoEntero(resto1), formatoEntero(resto2));
}

Resolucion resuelve(const SistemaCongruencias &sistema)
{
    const Filas filas = filasDe(sistema);
    const QString resultado = RestoChino(filas.restos, filas.modulos);
    if (!esError(resultado))
        return {Resolucion::Resuelto, resultado, {}};
    if (const auto pareja = contradiccion(filas))
        return {Resolucion::SinSolucion, resultado, pareja->texto()};
    return {Resolucion::FueraDeAlcance, resultado,
            Traduce(u"Los números son demasiado largos: se hallan soluciones de hasta 8191 "
                    "cifras."_s)};
}

bool esSolucion(const SistemaCongruencias &sistema, const QString &expresion)
{
    const Resolucion resolucion = resuelve(sistema);
    return resolucion.desenlace == Resolucion::Resuelto &&
           calculaEntero(expresion) == resolucion.resultado;
}
