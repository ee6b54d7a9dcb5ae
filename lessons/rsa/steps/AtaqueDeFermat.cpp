// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/rsa/steps/AtaquesPosibles.h"
#include "lessons/rsa/steps/RaicesEnteras.h"
#include "shell/core/ModGlobal.h"

#include <bitset>
#include <cstdint>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::int64_t MasIntentos = 100'000;
/// 64·9·5·7·11: one remainder in sixty is that of a square.
constexpr std::int64_t Cribador = 221'760;
constexpr int FilasDeTabla = 6;

/// The remainders of squares by Cribador.
const std::bitset<Cribador> &restosDeCuadrados()
{
    static const auto restos = [] {
        std::bitset<Cribador> todos;
        for (std::int64_t i = 0; i < Cribador; ++i)
            todos.set(static_cast<std::size_t>(i * i % Cribador));
        return todos;
    }();
    return restos;
}

std::int64_t restoDe(const EnteroLargo &n)
{
    return (n % Cribador).texto().toLongLong();
}

/// x² − q = y², or the last x tried with the y just below the root.
struct Busqueda
{
    EnteroLargo primero, x, y;
    bool hallada = false;
    bool parada = false;
};

Tarea<Busqueda> busca(QString numero, Billete billete)
{
    const EnteroLargo q(numero), suelo = raizEntera(q, 2);
    Busqueda b;
    b.primero = suelo * suelo == q ? suelo : suelo + 1;
    const std::int64_t resto = restoDe(q), inicio = restoDe(b.primero);
    for (std::int64_t k = 0; k < MasIntentos; ++k) {
        const std::int64_t x = (inicio + k) % Cribador;
        const std::int64_t diferencia = ((x * x - resto) % Cribador + Cribador) % Cribador;
        const bool ultimo = k == MasIntentos - 1;
        if (ultimo || restosDeCuadrados().test(static_cast<std::size_t>(diferencia))) {
            b.x = b.primero + k;
            const EnteroLargo d = b.x * b.x - q;
            b.y = raizEntera(d, 2);
            b.hallada = b.y * b.y == d;
        }
        co_await billete.ceder();
        b.parada = billete.detenida();
        if (b.hallada || b.parada)
            break;
    }
    co_return b;
}

Paso idea(const EnteroLargo &q, const Busqueda &b)
{
    Paso paso{
        Traduce(u"Se busca q como diferencia de cuadrados, x² − y², desde x = %1, la raíz de q "
                "redondeada hacia arriba."_s)
            .arg(b.primero.texto()),
        {Formula(u"(%1-1)^2 < %2 <= %1^2"_s.arg(b.primero.texto(), q.texto()))},
        Traduce(u"x² − y² = (x − y)·(x + y). Si los primos están cerca, x está cerca de la raíz "
                "de q."_s),
        {{u"x"_s, u"x² − q"_s}, {}}};
    for (EnteroLargo x = b.primero; x <= b.x && paso.tabla.filas.size() < FilasDeTabla; x = x + 1)
        paso.tabla.filas << QStringList{x.texto(), (x * x - q).texto()};
    return paso;
}

ResultadoDeAtaque hallados(const Victima &v, const Busqueda &b)
{
    const EnteroLargo q(v.q), menor = b.x - b.y, mayor = b.x + b.y;
    if (menor == 1)
        return sinExito(
            ResultadoDeAtaque::NoHay, {idea(q, b)},
            Traduce(u"No hay más diferencia de cuadrados que la de 1 y q: q es primo."_s),
            {Formula(u"%1^2 - %2 = %3^2"_s.arg(b.x.texto(), v.q, b.y.texto()))});
    const Paso cuadrado{
        Traduce(u"Con x = %1, x² − q es el cuadrado de %2."_s).arg(b.x.texto(), b.y.texto()),
        {Formula(u"%1^2 - %2 = %3^2"_s.arg(b.x.texto(), v.q, b.y.texto())),
         Formula(u"%1 = (%2-%3)*(%2+%3) = %4*%5"_s.arg(v.q, b.x.texto(), b.y.texto(), menor.texto(),
                                                       mayor.texto()))}};
    return conFactores(v, menor.texto(), mayor.texto(), {idea(q, b), cuadrado});
}

ResultadoDeAtaque lejanos(const Victima &v, const Busqueda &b)
{
    const QString diferencia = u"%1^2 - %2"_s.arg(b.x.texto(), v.q);
    return sinExito(
        ResultadoDeAtaque::Abandonado, {idea(EnteroLargo(v.q), b)},
        Traduce(
            u"No se ha podido: en %1 intentos x² − q no ha sido un cuadrado. Los primos de q, que "
            "tiene %2 bits, distan más de %3: no están lo bastante cerca."_s)
            .arg(MasIntentos)
            .arg(NumeroDeBits(v.q))
            .arg((b.y + b.y).texto()),
        {Formula(u"%1^2 < %2 < %3^2"_s.arg(b.y.texto(), diferencia, (b.y + 1).texto()))});
}

ResultadoDeAtaque paresSinMitad(const Victima &v)
{
    return sinExito(
        ResultadoDeAtaque::NoHay, {},
        Traduce(u"No hay diferencia de cuadrados que valga q: es par y no es múltiplo de "
                "4."_s),
        {Formula(u"%1 == 2 (mod 4)"_s.arg(v.q))});
}

} // namespace

Tarea<ResultadoDeAtaque> porFermat(Victima v, Billete billete)
{
    const EnteroLargo q(v.q);
    if (q % 4 == 2)
        co_return paresSinMitad(v);
    const Busqueda b = co_await busca(v.q, billete);
    if (b.hallada)
        co_return hallados(v, b);
    if (b.parada)
        co_return detenido();
    co_return lejanos(v, b);
}

ResultadoDeAtaque porFi(const Victima &v)
{
    const EnteroLargo q(v.q), fi(v.fi), suma = q - fi + 1;
    const EnteroLargo discriminante = suma * suma - EnteroLargo(4) * q;
    const Paso deLaSuma{Traduce(u"Alguien ha dejado ver φ(q) = %1. La suma de los primos sale de "
                                "φ(q) = q − (q(1) + q(2)) + 1."_s)
                            .arg(v.fi),
                        {Formula(u"%1 - %2 + 1 = %3"_s.arg(v.q, v.fi, suma.texto()))}};
    const bool negativo = discriminante < 0;
    const EnteroLargo y = negativo ? EnteroLargo() : raizEntera(discriminante, 2);
    if (negativo || y * y != discriminante)
        return sinExito(ResultadoDeAtaque::NoHay, {deLaSuma},
                        Traduce(u"No hay dos números con esa suma y con producto q: el φ(q) que se "
                                "ha visto no es el de esta clave."_s));
    const QString s = suma.texto(), raiz = y.texto();
    const QString menor = ((suma - y) / 2).texto(), mayor = ((suma + y) / 2).texto();
    const Paso ecuacion{
        Traduce(
            u"Con la suma y el producto, los primos son las soluciones de una ecuación de segundo "
            "grado."_s),
        {Formula(u"%1^2 - 4*%2 = %3^2"_s.arg(s, v.q, raiz)),
         Formula(u"{%1-%2}/2 = %3, {%1+%2}/2 = %4"_s.arg(s, raiz, menor, mayor)),
         Formula(u"%1*%2 = %3"_s.arg(menor, mayor, v.q))}};
    return conFactores(v, menor, mayor, {deLaSuma, ecuacion});
}
