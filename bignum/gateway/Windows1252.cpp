// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/Windows1252.h"

#include <QStringConverter>
#include <algorithm>
#include <array>

namespace {

// Opening a converter takes microseconds, and texts of a few characters come by the thousand: the
// 32 codes that differ from Latin-1 are asked for once.
constexpr int FirstOther = 0x80;
constexpr int AfterOthers = 0xA0;
using OtherCodes = std::array<char16_t, AfterOthers - FirstOther>;

const OtherCodes &otherCodes()
{
    static const OtherCodes codes = [] {
        OtherCodes read;
        QStringDecoder decoder("windows-1252");
        for (int code = FirstOther; code < AfterOthers; ++code) {
            const QString text = decoder.decode(QByteArray(1, static_cast<char>(code)));
            read[static_cast<std::size_t>(code - FirstOther)] = text.at(0).unicode();
        }
        return read;
    }();
    return codes;
}

/// The byte of a character; nothing when it has none.
std::optional<char> byteOf(char16_t character)
{
    if (character < FirstOther || (character >= AfterOthers && character <= 0xFF))
        return static_cast<char>(character);
    const auto found = std::ranges::find(otherCodes(), character);
    if (found == otherCodes().end())
        return {};
    return static_cast<char>(FirstOther + (found - otherCodes().begin()));
}

} // namespace

std::optional<QByteArray> aWindows1252(const QString &texto)
{
    QByteArray bytes;
    bytes.reserve(texto.size());
    for (const QChar caracter : texto) {
        const auto byte = byteOf(caracter.unicode());
        if (!byte)
            return {};
        bytes += *byte;
    }
    return bytes;
}

QString deWindows1252(QByteArrayView bytes)
{
    QString texto = QString::fromLatin1(bytes);
    for (QChar &caracter : texto) {
        const char16_t codigo = caracter.unicode();
        if (codigo >= FirstOther && codigo < AfterOthers)
            caracter = otherCodes()[static_cast<std::size_t>(codigo - FirstOther)];
    }
    return texto;
}
