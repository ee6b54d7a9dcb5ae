// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/ColMensajes.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"

QString ColMensajes::clave(const QString &remitente, const QString &destinatario,
                           const QString &asunto)
{
    return remitente.trimmed() + u'.' + destinatario.trimmed() + u'.' + asunto.trimmed();
}

clsMensaje &ColMensajes::Add(const QString &remitente, const QString &destinatario,
                             const QString &asunto, const QString &nombreFichero)
{
    auto mensaje = std::make_shared<clsMensaje>();
    mensaje->ponRemitente(remitente);
    mensaje->ponDestinatario(destinatario);
    mensaje->ponAsunto(asunto);
    mensaje->ponNombreFichero(nombreFichero);
    const QString suya = clave(remitente, destinatario, mensaje->Asunto());
    if (m_porClave.contains(suya))
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido, suya);
    m_porClave.insert(suya, mensaje);
    m_claves << suya;
    m_mensajes << mensaje;
    return *mensaje;
}

clsMensaje &ColMensajes::Item(qsizetype indice) const
{
    if (indice < 1 || indice > Count())
        throw ErrorEjecucion(ErrorEjecucion::IndiceFueraDeRango);
    return *m_mensajes[indice - 1];
}

void ColMensajes::Remove(qsizetype indice)
{
    if (indice < 1 || indice > Count())
        throw ErrorEjecucion(ErrorEjecucion::IndiceFueraDeRango);
    m_porClave.remove(m_claves.takeAt(indice - 1));
    m_mensajes.removeAt(indice - 1);
}

void ColMensajes::Anota(const QString &remitente, const QString &destinatario,
                        const QString &asunto, const QString &nombreFichero)
{
    // A subject that is not stored does not count in the key either.
    const QString guardado = EsTextoLegible(asunto) ? asunto : QString();
    const Mensaje mensaje = Item(clave(remitente, destinatario, guardado));
    if (!mensaje) {
        Add(remitente, destinatario, asunto, nombreFichero);
        return;
    }
    mensaje->ponDestinatario(destinatario);
    mensaje->ponRemitente(remitente);
    mensaje->ponNombreFichero(nombreFichero);
}
