// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/euclid/EcuacionDiofantica.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

// t·c passes 64 bits long before x and y do.
__extension__ using Entero128 = __int128;

QString formato(Entero128 valor)
{
    QString digitos;
    Entero128 resto = valor < 0 ? -valor : valor;
    do {
        digitos.prepend(QChar(u'0' + static_cast<int>(resto % 10)));
        resto /= 10;
    } while (resto != 0);
    return formatoEntero(valor < 0 ? u'-' + digitos : digitos);
}

/// ⌈-t·(c/b)⌉ as 32 bits hold it.
std::int64_t primeraK(Moneda t, Moneda b, Moneda c)
{
    try {
        return Techo(-t.real() * (c.real() / b.real()));
    } catch (const ErrorEjecucion &error) {
        throw ErrorEjecucion(error.numero(),
                             Traduce(u"El primer valor de k no cabe en 32 bits: pruebe con un "
                                     "cambio menor o con otros importes."_s));
    }
}

/// x = x0 + k·pasoX, y = y0 - k·pasoY, for k in [kmin, kmax].
struct Recta
{
    Entero128 x0, y0;
    std::int64_t pasoX, pasoY;
    std::int64_t kmin, kmax;

    std::int64_t cuantas() const { return kmax - kmin + 1; }
    SolucionesDiofanticas::Solucion punto(std::int64_t k) const
    {
        return {k - kmin + 1, static_cast<std::int64_t>(x0 + Entero128(k) * pasoX),
                static_cast<std::int64_t>(y0 - Entero128(k) * pasoY)};
    }
};

QList<SolucionesDiofanticas::Solucion> lista(const Recta &recta)
{
    constexpr std::int64_t mitad = SolucionesDiofanticas::MaximoListado / 2;
    const bool cortada = recta.cuantas() > SolucionesDiofanticas::MaximoListado;
    QList<SolucionesDiofanticas::Solucion> puntos;
    for (std::int64_t k = recta.kmin; k <= recta.kmax; ++k) {
        puntos << recta.punto(k);
        if (cortada && puntos.size() == mitad) {
            k = recta.kmax - mitad;
            puntos << SolucionesDiofanticas::Solucion{0, 0, 0};
        }
    }
    return puntos;
}

/// "7 + 3·k" and the like: no term 0, no factor 1.
QString expresionEnK(Entero128 termino, const QString &signo, bool signoSiempre, std::int64_t paso)
{
    QString s;
    if (termino != 0)
        s += formato(termino);
    if (termino != 0 || signoSiempre)
        s += signo;
    if (paso != 1)
        s += formato(paso) + u'·';
    return s + u'k';
}

QString solucionUnica(const Recta &recta)
{
    const auto punto = recta.punto(recta.kmin);
    return u"x = "_s + formato(punto.x) + u"\ny = "_s + formato(punto.y);
}

QString solucionGeneral(const Recta &recta)
{
    return u"x = "_s + expresionEnK(recta.x0, u" + "_s, false, recta.pasoX) + u"\ny = "_s +
           expresionEnK(recta.y0, u" - "_s, true, recta.pasoY) + u"\n\n"_s +
           Traduce(u"k entero en "_s) + u"\n["_s + formato(recta.kmin) + u", "_s +
           formato(recta.kmax) + u']';
}

} // namespace

SolucionesDiofanticas EcuacionDiofantica::resuelve(Moneda a, Moneda b, Moneda c)
{
    const Moneda cero;
    if (!(a > cero && b > cero && c >= cero))
        return {{}, Traduce(u"Soluciones"_s), {}};

    m_mcd.ponNúmero2(a);
    m_mcd.ponNúmero1(b);
    const Moneda t = m_mcd.Coeficiente2();
    const Moneda s = m_mcd.Coeficiente1();
    const std::int64_t kmin = primeraK(t, b, c);
    const auto kmax = static_cast<std::int64_t>(std::floor(s.real() * (c.real() / a.real())));
    const Moneda g = m_mcd.MCD();
    if (kmax < kmin || ModCy(c, g) != cero)
        return {{}, Traduce(u"Sin soluciones positivas"_s), {}};

    const std::int64_t veces = c.entero() / g.entero();
    const Recta recta{Entero128(t.entero()) * veces,
                      Entero128(s.entero()) * veces,
                      b.entero() / g.entero(),
                      a.entero() / g.entero(),
                      kmin,
                      kmax};
    if (recta.cuantas() == 1)
        return {lista(recta), Traduce(u"Solución única"_s), solucionUnica(recta)};
    return {lista(recta), Traduce(u"%1 soluciones"_s).arg(formato(recta.cuantas())),
            solucionGeneral(recta)};
}
