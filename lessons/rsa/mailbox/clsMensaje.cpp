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

void clsMensaje::CodificaTexto(Corrida &corrida)
{
    m_bloques = m_mensajeOK ? m_clave->Codifica(m_textoOriginal, corrida) : QStringList{QString()};
}

void clsMensaje::DescodificaTexto(Corrida &corrida)
{
    m_clave->Valida();
    ponTextoOriginal(m_clave->ClaveOK() ? m_clave->DesCodifica(m_bloques, corrida) : QString());
}

void clsMensaje::Envia()
{
    const QByteArray bytes = ArchivoMensaje::compone({m_remitente, m_asunto, m_bloques});
    m_nombreFichero = dejaMensaje(m_clave->DirMensajes(), m_destinatario, bytes);
}

void clsMensaje::Recibe(Corrida &corrida)
{
    ContenidoMensaje contenido = ArchivoMensaje::interpreta(leeMensaje(m_nombreFichero));
    m_remitente = contenido.remitente;
    m_asunto = contenido.asunto;
    m_bloques = std::move(contenido.bloques);
    ponTextoOriginal(m_clave->DesCodifica(m_bloques, corrida));
}
