// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Cuestion.h"

#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

QString comoExpresion(QString respuesta)
{
    static const QRegularExpression fibonacci(u"\\bF\\s*\\("_s);
    return respuesta.replace(u'−', u'-')
        .replace(u'·', u'*')
        .replace(u'×', u'*')
        .replace(fibonacci, u"fib("_s)
        .trimmed();
}

Juez juezDeEnteros(const Juez &juez)
{
    return [juez](const QString &respuesta) -> Juicio {
        const auto valor = leeEntero(respuesta);
        return valor ? juez(*valor)
                     : Juicio{false, Traduce(u"La respuesta es un número entero."_s)};
    };
}
