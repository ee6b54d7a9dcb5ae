// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/clsMensaje.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/rsa/mailbox/ArchivoMensaje.h"
#include "lessons/rsa/mailbox/Buzon.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

void clsMensaje::rechazaTexto()
{
    m_mensajeOK = false;
    QString motivo =
        Traduce(u"El texto del mensaje que quiere enviar puede confundir al destinatario."_s);
    Q_EMIT ErrorMensaje(motivo);
}

void clsMensaje::ponTextoOriginal(const QString &texto)
{
    m_textoOriginal = texto;
    if (!EsTextoLegible(texto))
        rechazaTexto();
}

void clsMensaje::ponAsunto(const QString &asunto)
{
    if (EsTextoLegible(asunto))
        m_asunto = asunto;
    else
        rechazaTexto();
}

Tarea<> clsMensaje::CodificaTexto(Billete billete)
{
    if (m_mensajeOK)
        m_bloques = co_await m_clave->Codifica(m_textoOriginal, billete);
    else
        m_bloques = QStringList{QString()};
}

Tarea<> clsMensaje::DescodificaTexto(Billete billete)
{
    m_clave->Valida();
    QString texto;
    if (m_clave->ClaveOK())
        texto = co_await m_clave->DesCodifica(m_bloques, billete);
    ponTextoOriginal(texto);
}

Tarea<> clsMensaje::Envia(Billete billete)
{
    const QString buzon = m_clave->DirMensajes();
    const ContenidoMensaje contenido{m_remitente, m_asunto, m_bloques};
    const QByteArray bytes = co_await ArchivoMensaje::compone(contenido, billete);
    if (!billete.detenida())
        m_nombreFichero = dejaMensaje(buzon, m_destinatario, bytes);
}

Tarea<> clsMensaje::Recibe(Billete billete)
{
    const Potencias potencias = m_clave->paraDescodificar();
    const QByteArray bytes = leeMensaje(m_nombreFichero);
    ContenidoMensaje contenido = co_await ArchivoMensaje::interpreta(bytes, billete);
    m_remitente = contenido.remitente;
    m_asunto = contenido.asunto;
    m_bloques = std::move(contenido.bloques);
    const QString texto = co_await descodifica(m_bloques, potencias, billete);
    ponTextoOriginal(texto);
}
