// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page/DireccionDeArranque.h"

#include <QUrlQuery>

using namespace Qt::Literals::StringLiterals;

DireccionDeArranque leeDireccionDeArranque(const QUrl &direccion)
{
    const QUrlQuery consulta(direccion);
    DireccionDeArranque leida;
    leida.idioma = consulta.queryItemValue(u"i"_s, QUrl::FullyDecoded);
    if (consulta.hasQueryItem(u"oscuro"_s))
        leida.oscuro = consulta.queryItemValue(u"oscuro"_s) != u"0";
    // Encoded as it came: which signs part the fields and which belong to them is told there.
    const QString lugar = direccion.fragment(QUrl::FullyEncoded);
    if (!lugar.isEmpty())
        leida.enlace = QUrl(u"numora:"_s + lugar);
    return leida;
}
