// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/EscenasRSA.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/clsSesion.h"

using namespace Qt::Literals::StringLiterals;

QList<Escena> escenasRSA()
{
    const QString p = u"618970019642690137449562111"_s;
    const QString q = u"170141183460469231731687303715884105727"_s;
    const QString clave, s = u"65537"_s;
    const QList<Gesto> valida{
        {u"txtQ_1"_s, p + u'\n'}, {u"txtQ_2"_s, q + u'\n'}, {u"txtS"_s, s + u'\n'}};
    const QList<Gesto> publica =
        valida +
        QList<Gesto>{{u"cmdBuzon"_s, {}}, {u"cmdPublicarClave"_s, {}}, {u"tsTema"_s, u"env-rec"_s}};
    const Gesto ataca{u"cmdAtacar"_s, {}}, pasos{u"cmdTodosLosPasos"_s, {}};
    const auto ataque = [&](const QString &nombre, const QString &victima) {
        return QList<Gesto>{
            {u"cmbAtaque"_s, Traduce(nombre)}, {u"cmbVictima"_s, Traduce(victima)}, ataca, pasos};
    };
    return {
        {u"rsa-introduccion"_s, u"intro"_s},
        {u"rsa-clave-vacia"_s, clave},
        {u"rsa-clave-objecion"_s,
         clave,
         {{u"txtQ_1"_s, u"259"_s}, {u"txtQ_2"_s, u"263"_s}, {u"txtS"_s, u"5"_s}}},
        {u"rsa-clave-escrita"_s, clave, {{u"txtQ_1"_s, p}, {u"txtQ_2"_s, q}, {u"txtS"_s, s}}},
        {u"rsa-codificacion"_s,
         u"cod-decod"_s,
         {{u"txtTextoOriginal"_s, u"¿Quedamos mañana a las cinco?"_s}}},
        {u"rsa-clave"_s, clave, valida},
        {u"rsa-codificado"_s, clave,
         valida + QList<Gesto>{{u"tsTema"_s, u"cod-decod"_s},
                               {u"txtTextoOriginal"_s, u"¿Quedamos mañana a las cinco?"_s},
                               {u"cmdCodificar"_s, {}}}},
        {u"rsa-pasos-clave"_s,
         clave,
         {{u"txtQ_1"_s, u"257\n"_s}, {u"txtQ_2"_s, u"263\n"_s}, {u"txtS"_s, u"5\n"_s}, pasos}},
        {u"rsa-pasos-codificacion"_s,
         clave,
         {{u"txtQ_1"_s, u"257\n"_s},
          {u"txtQ_2"_s, u"263\n"_s},
          {u"txtS"_s, u"5\n"_s},
          {u"tsTema"_s, u"cod-decod"_s},
          {u"txtTextoOriginal"_s, u"¿Quedamos?"_s},
          {u"cmdCodificar"_s, {}},
          pasos}},
        {u"rsa-ataque-tabla"_s, clave,
         ataque(u"Tabla de los 256 paquetes"_s, u"q = 2773, la del artículo de 1978"_s)},
        {u"rsa-ataque-fermat"_s, clave,
         ataque(u"Primos próximos (Fermat)"_s, u"Dos primos próximos"_s)},
        {u"rsa-ataque-abandonado"_s, clave,
         ataque(u"Factorizar q"_s, u"RSA-129, de 129 cifras (1977)"_s)},
        {u"rsa-mensajes-vacio"_s, clave, publica},
        {u"rsa-mensajes"_s, clave,
         publica + QList<Gesto>{{u"cmbDestinatario"_s, Sesión().UserName() + u'\n'},
                                {u"txtAsunto"_s, u"La merienda"_s},
                                {u"txtDestTextoOriginal"_s, u"¿Quedamos mañana a las cinco?"_s},
                                {u"enviar"_s, {}},
                                {u"revisar"_s, {}}}},
    };
}
