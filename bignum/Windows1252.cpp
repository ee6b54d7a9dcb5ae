#include "bignum/Windows1252.h"

#include <QStringConverter>

std::optional<QByteArray> aWindows1252(const QString &texto)
{
    QStringEncoder codificador("windows-1252");
    QByteArray bytes = codificador.encode(texto);
    if (codificador.hasError())
        return {};
    return bytes;
}

QString deWindows1252(QByteArrayView bytes)
{
    QStringDecoder descodificador("windows-1252");
    return descodificador.decode(bytes);
}
