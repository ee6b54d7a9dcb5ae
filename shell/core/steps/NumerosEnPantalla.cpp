// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/NumerosEnPantalla.h"

#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype SinGrupos = 4;
constexpr QChar BlancoFino = u'\u202f';

bool esCifra(QChar c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

QString numeroEnPantalla(QStringView digitos, qsizetype masCifras)
{
    const qsizetype extremo = masCifras * 3 / 10;
    if (digitos.size() > masCifras)
        return digitos.first(extremo).toString() + u'…' + digitos.last(extremo).toString() +
               Traduce(u" (%1 cifras)"_s).arg(digitos.size());
    QString numero;
    for (qsizetype i = 0; i < digitos.size(); ++i) {
        if (i > 0 && digitos.size() > SinGrupos && (digitos.size() - i) % 3 == 0)
            numero += BlancoFino;
        numero += digitos[i];
    }
    return numero;
}

QString conNumerosEnPantalla(const QString &frase)
{
    QString vista;
    for (qsizetype i = 0; i < frase.size();) {
        qsizetype fin = i;
        while (fin < frase.size() && esCifra(frase[fin]))
            ++fin;
        if (fin > i)
            vista += numeroEnPantalla(QStringView(frase).sliced(i, fin - i));
        else
            vista += frase[fin++];
        i = fin;
    }
    return vista;
}
