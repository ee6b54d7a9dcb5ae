// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/answers/PalabraRespondida.h"

#include "shell/core/ModGlobal.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Small letters without accents, raised ones behind "^": "Si" for "sí", "n^2" for "n²".
QString llana(const QString &palabra)
{
    QString letras;
    bool arriba = false;
    for (const QChar c : palabra) {
        const bool alzada = c.decompositionTag() == QChar::Super;
        if (alzada && !arriba)
            letras += u'^';
        arriba = alzada;
        for (const QChar parte : QString(c.toLower()).normalized(QString::NormalizationForm_KD)) {
            if (parte.isLetterOrNumber() || parte == u'!' || parte == u'^')
                letras += parte;
        }
    }
    return letras;
}

} // namespace

QString palabraRespondida(const QString &texto, const QStringList &palabras)
{
    static const QRegularExpression conTheta(u"^\\s*[OΘ]\\s*\\((.*)\\)\\s*$"_s);
    const auto orden = conTheta.match(texto);
    QString dada = llana(orden.hasMatch() ? orden.captured(1) : texto);
    // An exclamation mark is one where no word has a factorial.
    if (!palabras.join(u' ').contains(u'!'))
        dada.remove(u'!');
    for (const QString &palabra : palabras) {
        if (dada == llana(palabra) || dada == llana(Traduce(palabra)))
            return palabra;
    }
    return {};
}
