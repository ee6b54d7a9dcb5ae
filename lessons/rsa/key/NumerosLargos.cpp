#include "lessons/rsa/key/NumerosLargos.h"

#include "shell/core/ModGlobal.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

QString abreviaNumeros(const QString &texto)
{
    constexpr int muestra = 24;
    static const QRegularExpression largo(u"\\d{91,}"_s);
    QString breve;
    qsizetype hasta = 0;
    for (auto i = largo.globalMatch(texto); i.hasNext();) {
        const auto numero = i.next();
        const QString cifras = numero.captured();
        breve += texto.sliced(hasta, numero.capturedStart() - hasta);
        breve += u"%1…%2 (%3)"_s.arg(cifras.left(muestra), cifras.right(muestra),
                                     Traduce(u"%1 cifras"_s).arg(cifras.size()));
        hasta = numero.capturedEnd();
    }
    return breve + texto.sliced(hasta);
}
