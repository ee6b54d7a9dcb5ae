#include "NameChecker.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A text of the interface as a page writes it.
QString asNamed(QString text)
{
    text.remove(u'&');
    if (text.endsWith(u'…'))
        text.chop(1);
    return text.replace(u'\'', u'’').trimmed();
}

QHash<QString, QStringList> translationsIn(const QString &path, const QString &section)
{
    QHash<QString, QStringList> translations;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return translations;
    bool inside = false;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines) {
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'['))
            inside = line.trimmed() == u'[' + section + u']';
        else if (inside && equals > 0)
            translations[asNamed(line.first(equals))] << asNamed(line.sliced(equals + 1));
    }
    return translations;
}

bool isNamed(const QString &page, const QString &name)
{
    const QString pattern = u"[“«„‘]%1[”»“’]"_s.arg(QRegularExpression::escape(name));
    return page.contains(QRegularExpression(pattern));
}

} // namespace

QStringList nameFaults(const QString &spanish, const QString &translation, const QString &texts,
                       const QString &section)
{
    static const QRegularExpression quoted(u"«([^»]+)»"_s);
    const QHash<QString, QStringList> translations = translationsIn(texts, section);
    QStringList faults;
    for (auto it = quoted.globalMatch(spanish); it.hasNext();) {
        const QString name = it.next().captured(1);
        const QStringList names = translations.value(asNamed(name));
        const bool named = std::any_of(names.begin(), names.end(), [&](const QString &own) {
            return isNamed(translation, own);
        });
        if (!names.isEmpty() && !named)
            faults << u"«%1» is not named “%2”"_s.arg(name, names.join(u"” or “"_s));
    }
    return faults;
}
