// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSAComun.h"

#include "lessons/rsa/key/TextoEnBloques.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Veredicto.h"

#include <QAbstractButton>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

BotonDeCorrida *corridaDe(QAbstractButton *boton, const QString &imagen, const QString &consejo)
{
    auto *corrida = new BotonDeCorrida(boton, {imagen, boton->text(), boton->toolTip()},
                                       {u"STOP"_s, Traduce(u"Detener"_s), consejo});
    corrida->ponReposo(BotonDeCorrida::Reposo::AlVolver);
    return corrida;
}

bool seCodifica(QLabel *rotulo, const QString &texto)
{
    const auto motivo = texto.size() > MaximoDeCaracteres
                            ? Traduce(u"Un texto tiene como mucho %1 caracteres."_s)
                                  .arg(formatoEntero(MaximoDeCaracteres))
                            : caracterInadmisible(texto);
    if (motivo)
        muestraVeredicto(rotulo, false, *motivo);
    return !motivo;
}

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
