// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/shared/PasosDelBanco.h"

using namespace Qt::Literals::StringLiterals;

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
