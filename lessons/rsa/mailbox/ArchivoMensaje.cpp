// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/ArchivoMensaje.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/Windows1252.h"
#include "lessons/rsa/key/TextoEnBloques.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The lines of a file, one after the other.
class Lineas
{
public:
    explicit Lineas(QByteArrayView bytes) : m_resto(bytes)
    {
        constexpr QByteArrayView marca = "\xEF\xBB\xBF";
        m_utf8 = bytes.startsWith(marca);
        if (m_utf8)
            m_resto = bytes.sliced(marca.size());
    }

    bool hay() const { return !m_resto.isEmpty(); }
    /// Whether the end of the line that comes next is in sight.
    bool hayEntera() const { return m_resto.contains('\n'); }

    QString siguiente()
    {
        const qsizetype salto = m_resto.indexOf('\n');
        QByteArrayView linea = salto < 0 ? m_resto : m_resto.first(salto);
        m_resto = salto < 0 ? QByteArrayView() : m_resto.sliced(salto + 1);
        if (linea.endsWith('\r'))
            linea = linea.chopped(1);
        return m_utf8 ? QString::fromUtf8(linea) : deWindows1252(linea);
    }

private:
    QByteArrayView m_resto;
    bool m_utf8 = false;
};

QByteArray linea(const QString &texto)
{
    const auto bytes = aWindows1252(texto);
    if (!bytes || bytes->contains('\n') || bytes->contains('\r'))
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido,
                             caracterInadmisible(texto).value_or(texto.simplified().left(255)));
    return *bytes + "\r\n";
}

void compruebaTamano(qint64 bytes, qsizetype bloques)
{
    if (bytes > ArchivoMensaje::MaximoDeBytes || bloques > ArchivoMensaje::MaximoDeBloques)
        throw ErrorEjecucion(ErrorEjecucion::ErrorDeArchivo,
                             Traduce(u"El mensaje es demasiado largo."_s));
}

} // namespace

Tarea<QByteArray> ArchivoMensaje::compone(ContenidoMensaje contenido, Billete billete)
{
    QByteArray bytes = linea(contenido.remitente) + linea(contenido.asunto.trimmed());
    if (bytes.size() > MaximoDeCabecera)
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido, contenido.asunto.left(255));
    for (const QString &bloque : contenido.bloques) {
        bytes += linea(bloque);
        compruebaTamano(bytes.size(), contenido.bloques.size());
        co_await billete.ceder();
        if (billete.detenida())
            break;
    }
    co_return bytes;
}

Tarea<ContenidoMensaje> ArchivoMensaje::interpreta(QByteArray bytes, Billete billete)
{
    Lineas lineas(bytes);
    ContenidoMensaje contenido{lineas.siguiente(), lineas.siguiente(), {}};
    while (lineas.hay() && !billete.detenida()) {
        contenido.bloques << lineas.siguiente();
        compruebaTamano(bytes.size(), contenido.bloques.size());
        co_await billete.ceder();
    }
    co_return contenido;
}

std::optional<ContenidoMensaje> ArchivoMensaje::interpretaCabecera(const QByteArray &principio)
{
    Lineas lineas(principio);
    if (!lineas.hayEntera())
        return {};
    const QString remitente = lineas.siguiente();
    const bool cortada = principio.size() >= MaximoDeCabecera;
    if (!lineas.hay() || (cortada && !lineas.hayEntera()))
        return {};
    return ContenidoMensaje{remitente, lineas.siguiente(), {}};
}
