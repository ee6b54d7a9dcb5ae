// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Perfil.h"
#include "tests/fuzz/FuzzTarget.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// What may be keys: whatever stands before "=" in a line.
QStringList keysOf(const QByteArray &bytes)
{
    QStringList keys{u"q"_s, u"Primos"_s};
    for (const QByteArray &line : bytes.split('\n'))
        keys << QString::fromUtf8(line.left(line.indexOf('='))).trimmed();
    return keys;
}

QString capitals(QString text)
{
    for (QChar &c : text) {
        if (c >= u'a' && c <= u'z')
            c = c.toUpper();
    }
    return text;
}

void checkKey(const Perfil &profile, const QString &section, const QString &key)
{
    const QString whole = profile.valor(section, key, u"absent"_s, 1'000'000);
    for (const int limit : {1, 2, 80, 8192}) {
        const QString value = profile.valor(section, key, u"absent"_s, limit);
        check(value == whole.left(limit - 1), "a value is cut to one less than its limit");
    }
    check(profile.valor(section, capitals(key), u"absent"_s, 1'000'000) == whole,
          "letter case does not count");
    check(!whole.contains(u'\n') && !whole.contains(u'\0'), "a value is a line");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    Perfil profile;
    if (profile.leeBytes(bytes) != Perfil::Lectura::Correcta)
        return 0;
    const QStringList keys = keysOf(bytes);
    for (const QString &section : {u""_s, u"RSA"_s, u"English"_s, u"Español"_s})
        for (const QString &key : keys)
            checkKey(profile, section, key);
    return 0;
}
