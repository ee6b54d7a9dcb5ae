// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/answers/PartesDeRespuesta.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

QStringList partesDeLista(QString texto)
{
    static const QRegularExpression y(u"(?<=[\\s\\d)])(?:y|and)(?=[\\s\\d(])(?!\\s*=)"_s);
    texto.replace(y, u","_s);
    texto = texto.trimmed();
    const bool encerrada = texto.size() > 1 && u"([{"_s.contains(texto.front()) &&
                           u")]}"_s.contains(texto.back()) && texto.count(u'(') <= 1;
    if (encerrada)
        texto = texto.sliced(1, texto.size() - 2);
    QStringList partes(1);
    int hondo = 0;
    for (const QChar c : std::as_const(texto)) {
        hondo += c == u'(' ? 1 : c == u')' ? -1 : 0;
        if (hondo == 0 && (c == u',' || c == u';'))
            partes << QString();
        else
            partes.back() += c;
    }
    return partes;
}

QStringList partesSueltas(const QString &parte)
{
    static const QRegularExpression blancos(u"(?<=[\\d)])\\s+(?=[\\d(\\p{L}]|-\\d)"_s);
    return parte.split(blancos, Qt::SkipEmptyParts);
}

QString conComaEntreIncognitas(QString texto)
{
    static const QRegularExpression entre(u"[\\s,;]+(?:(?:e|y|and)\\s+)?(?=[xyXY]\\s*=)"_s);
    return texto.replace(entre, u", "_s);
}

QString sinBlancosDeGrupo(QString texto)
{
    static const QRegularExpression blancos(u"(?<=\\d)\\s+(?=\\d{3}(?!\\d))"_s);
    return texto.remove(blancos);
}
