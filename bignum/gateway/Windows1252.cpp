// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/Windows1252.h"

#include <algorithm>
#include <array>

namespace {

// The 32 codes that differ from Latin-1, after the table cp1252 of the Unicode Consortium; the five
// that are undefined there are the control characters of the same number. Qt knows the set only
// where it was built with ICU, which it is not on every platform.
constexpr int FirstOther = 0x80;
constexpr int AfterOthers = 0xA0;
constexpr std::array<char16_t, AfterOthers - FirstOther> OtherCodes{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The byte of a character; nothing when it has none.
std::optional<char> byteOf(char16_t character)
{
    if (character < FirstOther || (character >= AfterOthers && character <= 0xFF))
        return static_cast<char>(character);
    const auto *const found = std::find(OtherCodes.begin(), OtherCodes.end(), character);
    if (found == OtherCodes.end())
        return {};
    return static_cast<char>(FirstOther + (found - OtherCodes.begin()));
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
            caracter = OtherCodes[static_cast<std::size_t>(codigo - FirstOther)];
    }
    return texto;
}
