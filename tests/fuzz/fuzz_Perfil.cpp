#include "shell/Perfil.h"
#include "tests/fuzz/FuzzTarget.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString capitals(QString text)
{
    for (QChar &c : text) {
        if (c >= u'a' && c <= u'z')
            c = c.toUpper();
    }
    return text;
}

void checkSection(const Perfil &profile, const QString &section)
{
    const QString absent = u"\x1absent"_s;
    for (const QString &key : profile.claves(section)) {
        for (const int limit : {1, 2, 80, 8192}) {
            const QString value = profile.valor(section, key, absent, limit);
            check(value.size() < limit, "a value is shorter than its limit");
            check(value == profile.valor(section, key, absent).left(limit - 1),
                  "a short value begins as the long one");
        }
        check(profile.valor(section, key, absent) != absent, "a listed key has a value");
        check(profile.valor(section, capitals(key)) == profile.valor(section, key),
              "letter case does not count");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    Perfil profile;
    if (profile.leeBytes(bytes) != Perfil::Lectura::Correcta)
        return 0;
    for (const QString &section : {u""_s, u"RSA"_s, u"English"_s, u"Español"_s})
        checkSection(profile, section);
    return 0;
}
