// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/congruences/Sistema.h"

#include "lessons/congruences/PasosDelTCR.h"
#include "practice/bank/shared/Numeros.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How often the moduli up to i have to be added to x so that congruence i holds too; none where
/// it never does.
std::optional<qint64> vueltas(const Sistema &s, qsizetype i, qint64 x, qint64 m)
{
    for (qint64 k = 0; k < s.modulos[i]; ++k) {
        if ((x + m * k - s.restos[i]) % s.modulos[i] == 0)
            return k;
    }
    return {};
}

} // namespace

qint64 Sistema::periodo() const
{
    return std::accumulate(modulos.begin(), modulos.end(), qint64(1),
                           [](qint64 a, qint64 b) { return std::lcm(a, b); });
}

std::optional<qint64> Sistema::solucion() const
{
    qint64 x = restos[0], m = modulos[0];
    for (qsizetype i = 1; i < modulos.size(); ++i) {
        const auto k = vueltas(*this, i, x, m);
        if (!k)
            return {};
        x += m * *k;
        m = std::lcm(m, modulos[i]);
    }
    return x;
}

qsizetype Sistema::primeraSinCumplir(const QString &x) const
{
    for (qsizetype i = 0; i < modulos.size(); ++i) {
        if (restoDe(x, modulos[i]) != restos[i])
            return i;
    }
    return -1;
}

qsizetype Sistema::cuantasCumple(const QString &x) const
{
    qsizetype cuantas = 0;
    for (qsizetype i = 0; i < modulos.size(); ++i)
        cuantas += restoDe(x, modulos[i]) == restos[i] ? 1 : 0;
    return cuantas;
}

QString Sistema::texto() const
{
    QStringList congruencias;
    for (qsizetype i = 0; i < modulos.size(); ++i)
        congruencias << u"x ≡ %1 (mod %2)"_s.arg(restos[i]).arg(modulos[i]);
    return congruencias.join(u", "_s);
}

Sistema sistemaDe(const QList<qint64> &modulos, int cuantos, Sorteo &sorteo, qint64 menorResto)
{
    Sistema s{{}, sorteo.barajada(modulos).first(cuantos)};
    Sistema otros = s;
    const auto mayor = std::max_element(otros.modulos.begin(), otros.modulos.end());
    const qint64 n = *mayor;
    otros.modulos.erase(mayor);
    for (const qint64 m : otros.modulos)
        otros.restos << sorteo.entre(menorResto, m - 1);
    const qint64 menor = *otros.solucion(), periodo = otros.periodo();
    const qint64 vuelta = sorteo.de(losQue(0, n - 1, [&](qint64 k) {
        const qint64 x = menor + k * periodo;
        return x > n && x % n >= menorResto;
    }));
    for (const qint64 m : s.modulos)
        s.restos << (menor + vuelta * periodo) % m;
    return s;
}

Pasos pasosDeSistema(const Sistema &s)
{
    SistemaCongruencias filas;
    for (qsizetype i = 0; i < s.modulos.size(); ++i)
        filas << Congruencia{QString::number(s.restos[i]), QString::number(s.modulos[i])};
    return pasosDelTCR(filas);
}
