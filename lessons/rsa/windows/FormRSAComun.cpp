// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSAComun.h"

#include "lessons/rsa/key/TextoEnBloques.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Interlocutor.h"

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

bool seCodifica(QWidget *ventana, const QString &texto)
{
    const auto rechaza = [ventana](const QString &motivo, const QString &titulo) {
        interlocutor().avisa(ventana, Interlocutor::Icono::Exclamacion, motivo, titulo);
        return false;
    };
    if (texto.size() > MaximoDeCaracteres)
        return rechaza(Traduce(u"Un texto tiene como mucho %1 caracteres."_s)
                           .arg(formatoEntero(MaximoDeCaracteres)),
                       Traduce(u"Texto demasiado largo"_s));
    if (const auto motivo = caracterInadmisible(texto))
        return rechaza(*motivo, Traduce(u"Carácter no admitido"_s));
    return true;
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
