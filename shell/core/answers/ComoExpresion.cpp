// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/answers/ComoExpresion.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

/// "²" and "₂" as the digits that they are, after "^" and as the index of F.
void bajaCifras(QString &texto)
{
    static const QString arriba = u"⁰¹²³⁴⁵⁶⁷⁸⁹⁻"_s;
    static const QString abajo = u"₀₁₂₃₄₅₆₇₈₉"_s;
    static const QString llanas = u"0123456789-"_s;
    QString llano;
    bool enExponente = false;
    bool enIndice = false;
    for (const QChar c : texto) {
        const qsizetype exponente = arriba.indexOf(c);
        const qsizetype indice = abajo.indexOf(c);
        if (enIndice && indice < 0)
            llano += u')';
        if (exponente >= 0)
            llano += (enExponente ? QString() : u"^"_s) + llanas[exponente];
        else if (indice >= 0)
            llano += (enIndice ? QString() : u"("_s) + llanas[indice];
        else
            llano += c;
        enExponente = exponente >= 0;
        enIndice = indice >= 0;
    }
    texto = enIndice ? llano + u')' : llano;
}

/// Grouping as the program prints it: no group begins with a 0, as decimals do.
void quitaGrupos(QString &texto)
{
    static const QRegularExpression grupos(
        u"(?<![\\d.,'])[1-9]\\d{0,2}(?:([.'\\x{00a0}\\x{202f}\\x{2009}])\\d{3})(?:\\g1\\d{3})*(?![\\d.])"_s);
    QString sin;
    qsizetype desde = 0;
    for (auto i = grupos.globalMatch(texto); i.hasNext();) {
        const auto hallado = i.next();
        sin += QStringView(texto).sliced(desde, hallado.capturedStart() - desde);
        for (const QChar c : hallado.captured()) {
            if (c.isDigit())
                sin += c;
        }
        desde = hallado.capturedEnd();
    }
    texto = sin + texto.sliced(desde);
}

} // namespace

QString comoExpresion(QString texto)
{
    static const QRegularExpression fibonacci(u"(?<!\\p{L})F\\s*(?=\\()"_s);
    static const QRegularExpression fi(u"φ\\s*(?=\\()"_s);
    static const QRegularExpression producto(u"(?<=[\\d)])(?=\\p{L}+\\(|\\()"_s);
    bajaCifras(texto);
    quitaGrupos(texto);
    texto.replace(u'−', u'-').replace(u'·', u'*').replace(u'×', u'*').replace(u'÷', u'/');
    return texto.replace(fibonacci, u"fib"_s)
        .replace(fi, u"fi"_s)
        .replace(producto, u"*"_s)
        .trimmed();
}
