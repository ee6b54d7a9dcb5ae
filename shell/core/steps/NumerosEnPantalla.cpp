// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/NumerosEnPantalla.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

bool esCifra(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// Whether the digits from `i` on belong to what stands before them: decimals, or a name as
/// "A1000".
bool esCola(const QString &frase, qsizetype i)
{
    if (i == 0)
        return false;
    const QChar antes = frase[i - 1];
    return antes.isLetter() || antes == u'_' || (antes == u',' && i > 1 && esCifra(frase[i - 2]));
}

} // namespace

QString numeroEnPantalla(QStringView digitos, qsizetype masCifras)
{
    const qsizetype extremo = masCifras * 3 / 10;
    if (digitos.size() > masCifras)
        return digitos.first(extremo).toString() + u'…' + digitos.last(extremo).toString() +
               Traduce(u" (%1 cifras)"_s).arg(formatoEntero(qint64{digitos.size()}));
    return formatoEntero(digitos.toString());
}

QString conNumerosEnPantalla(const QString &frase)
{
    QString vista;
    for (qsizetype i = 0; i < frase.size();) {
        qsizetype fin = i;
        while (fin < frase.size() && esCifra(frase[fin]))
            ++fin;
        const QStringView cifras = QStringView(frase).sliced(i, fin - i);
        if (fin > i && esCola(frase, i))
            vista += cifras;
        else if (fin > i)
            vista += numeroEnPantalla(cifras);
        else
            vista += frase[fin++];
        i = fin;
    }
    return vista;
}
