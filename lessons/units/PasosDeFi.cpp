// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/PasosDeUnidades.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Paso descomposicion(const FuncionEuler &euler, const QString &n)
{
    Paso paso{Traduce(u"Se descompone n en factores primos."_s)};
    if (!euler.factores().isEmpty())
        paso.formulas << Formula(n + u" = "_s + euler.factorizacion().replace(u" · "_s, u"*"_s));
    if (!euler.compuesto().isEmpty())
        paso.regla =
            Traduce(u"El último factor es compuesto y no se ha podido descomponer: sin sus "
                    u"primos no hay manera rápida conocida de hallar φ(n)."_s);
    return paso;
}

Paso potencia(const FuncionEuler::Factor &f)
{
    const QString menosUno = u"{%1 - 1}"_s.arg(f.primo);
    const int k = f.exponente.toInt() - 1;
    const QString valor =
        k == 0 ? f.primo + u" - 1"_s
               : f.primo + (k == 1 ? QString() : u'^' + QString::number(k)) + u'*' + menosUno;
    return {Traduce(u"No son primos con %1 los múltiplos de %2: los demás se cuentan así."_s)
                .arg(f.potencia(), f.primo),
            {Formula(u"φ(%1) = %2 = %3"_s.arg(f.potencia(), valor, f.fi))}};
}

Paso producto(const FuncionEuler &euler, const QString &n)
{
    QStringList partes;
    for (const FuncionEuler::Factor &f : euler.factores())
        partes << f.fi;
    return {
        Traduce(u"Se multiplica lo que da cada potencia de primo."_s),
        {Formula(u"φ(%1) = %2 = %3"_s.arg(n, partes.isEmpty() ? u"1"_s : partes.join(u'*'),
                                          euler.valor()))},
        Traduce(u"Por el teorema chino, un resto módulo n es primo con n cuando lo es módulo cada "
                "potencia: φ de un producto de primos entre sí es el producto."_s)};
}

} // namespace

Pasos pasosDeFi(const FuncionEuler &euler, const QString &n)
{
    const qsizetype factores = euler.factores().size();
    const bool completo = !euler.valor().isEmpty();
    return Pasos(1 + factores + (completo ? 1 : 0), [euler, n, factores](qsizetype i) {
        if (i == 0)
            return descomposicion(euler, n);
        return i <= factores ? potencia(euler.factores()[i - 1]) : producto(euler, n);
    });
}
