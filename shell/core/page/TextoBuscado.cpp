// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page/TextoBuscado.h"

#include <QList>

using namespace Qt::Literals::StringLiterals;

QString paraBuscar(const QString &texto)
{
    QString simple = texto;
    for (QChar &letra : simple) {
        const QString partes = letra.decomposition();
        const bool conAcento = letra.decompositionTag() == QChar::Canonical && partes.size() == 2 &&
                               partes.at(1).isMark();
        if (letra.isSpace())
            letra = u' ';
        else
            letra = (conAcento ? partes.at(0) : letra).toLower();
    }
    return simple;
}

QList<qsizetype> halla(const QString &buscado, const QString &texto)
{
    const QString aguja = paraBuscar(buscado), pajar = paraBuscar(texto);
    QList<qsizetype> lugares;
    // Blanks at the ends are there or not as the tags of a page happen to stand.
    qsizetype i = 0, fin = pajar.size();
    while (i < fin && pajar[i] == u' ')
        ++i;
    while (fin > i && pajar[fin - 1] == u' ')
        --fin;
    while (!aguja.isEmpty() && (i = pajar.indexOf(aguja, i)) >= 0 && i + aguja.size() <= fin) {
        lugares << i;
        i += aguja.size();
    }
    return lugares;
}
