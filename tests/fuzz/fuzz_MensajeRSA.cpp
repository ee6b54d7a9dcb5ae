// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/rsa/key/TextoEnBloques.h"
#include "lessons/rsa/mailbox/ArchivoMensaje.h"
#include "tests/fuzz/FuzzTarget.h"

namespace {

bool isLine(const QString &text)
{
    return !text.contains(u'\n');
}

/// Bytes that others wrote are composed anew, and read again.
void checkRoundTrip(const ContenidoMensaje &message)
{
    QByteArray bytes;
    try {
        bytes = ArchivoMensaje::compone(message, {}).completa();
    } catch (const ErrorEjecucion &) {
        return;
    }
    const ContenidoMensaje again = ArchivoMensaje::interpreta(bytes, {}).completa();
    check(again.remitente == message.remitente && again.asunto == message.asunto.trimmed() &&
              again.bloques == message.bloques,
          "what is written is read back");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const ContenidoMensaje message = ArchivoMensaje::interpreta(bytes, {}).completa();
    check(isLine(message.remitente) && isLine(message.asunto), "a header is two lines");
    for (const QString &block : message.bloques) {
        check(isLine(block), "a block is a line");
        NumeroATexto(block);
    }
    const auto header =
        ArchivoMensaje::interpretaCabecera(bytes.left(ArchivoMensaje::MaximoDeCabecera));
    check(!header || (header->remitente == message.remitente && header->asunto == message.asunto),
          "the scan and the reader see the same sender and subject");
    checkRoundTrip(message);
    return 0;
}
