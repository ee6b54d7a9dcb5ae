// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/modular/SucesionDePractica.h"

#include "lessons/recursion/modular/PasosModulares.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

QString SucesionDePractica::texto() const
{
    return Traduce(u"f(n) = %1 · f(n − 1) %2 · f(n − 2), con f(1) = %3 y f(2) = %4, módulo %5"_s)
        .arg(QString::number(alfa), (beta < 0 ? u"− "_s : u"+ "_s) + QString::number(qAbs(beta)),
             QString::number(f1), QString::number(f2), QString::number(m));
}

QList<qint64> SucesionDePractica::valores(int n) const
{
    QList<qint64> f = {f1 % m, f2 % m};
    while (f.size() < n) {
        const qint64 valor = (alfa * f.back() + beta * f[f.size() - 2]) % m;
        f << (valor + m) % m;
    }
    return f;
}

DefinicionRecurrente SucesionDePractica::definicion() const
{
    return {Moneda::deEntero(alfa), Moneda::deEntero(beta), Moneda::deEntero(f1),
            Moneda::deEntero(f2)};
}

std::optional<PeriodoModular> SucesionDePractica::periodo() const
{
    return SucesionModular(definicion(), static_cast<std::int32_t>(m)).periodo();
}

Pasos SucesionDePractica::pasos() const
{
    return pasosDeSucesion(definicion(),
                           SucesionModular(definicion(), static_cast<std::int32_t>(m)));
}
