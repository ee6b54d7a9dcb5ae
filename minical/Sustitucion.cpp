// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/Sustitucion.h"

#include "bignum/gateway/ErrorEjecucion.h"

#include <QList>

// Going through all names for each expression would make a full sheet quadratic. It is enough to
// look at each letter of the expression once: a name begins with its only letter and no value has
// one, so replacing a name can neither make nor break an occurrence that begins at another letter.
// Of the two names that may begin at a letter ("A1" and "A12") the one that comes first in the
// collection would have been replaced first, and then the letter is gone.

namespace {

bool esCifra(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// An occurrence of a name: where it begins, how long it is, and what stands in its place.
struct Aparicion
{
    qsizetype inicio;
    qsizetype largo;
    const QString *valor;
};

/// The name that is replaced at a letter, of the one or two that may begin there.
Aparicion aparicionEn(const ColVariables &variables, const QString &expresion, qsizetype i)
{
    Aparicion hallada{i, 0, nullptr};
    ColVariables::Orden primera = 0;
    for (qsizetype largo = 2; largo <= 3 && i + largo <= expresion.size(); ++largo) {
        if (!esCifra(expresion[i + largo - 1]))
            break;
        const auto entrada = variables.busca(expresion.sliced(i, largo));
        if (entrada == variables.end() || (hallada.valor && entrada->first > primera))
            continue;
        hallada = {i, largo, &entrada->second.Valor()};
        primera = entrada->first;
    }
    return hallada;
}

QList<Aparicion> apariciones(const ColVariables &variables, const QString &expresion)
{
    QList<Aparicion> lista;
    for (qsizetype i = 0; i < expresion.size(); ++i) {
        if (expresion[i] < u'A' || expresion[i] > u'Z')
            continue;
        const Aparicion hallada = aparicionEn(variables, expresion, i);
        if (hallada.valor)
            lista << hallada;
    }
    return lista;
}

} // namespace

QString sustituyeVariables(const ColVariables &variables, const QString &expresion,
                           qsizetype maximo)
{
    const QList<Aparicion> lista = apariciones(variables, expresion);
    qsizetype largo = expresion.size();
    for (const Aparicion &a : lista)
        largo += a.valor->size() - a.largo;
    if (largo > maximo)
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);

    QString texto;
    texto.reserve(largo);
    qsizetype hasta = 0;
    for (const Aparicion &a : lista) {
        texto += QStringView(expresion).sliced(hasta, a.inicio - hasta);
        texto += *a.valor;
        hasta = a.inicio + a.largo;
    }
    texto += QStringView(expresion).sliced(hasta);
    return texto;
}
