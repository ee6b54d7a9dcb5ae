// SPDX-License-Identifier: GPL-3.0-or-later
#include "PageCheckers.h"

#include <QLocale>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The names that only one of two lists holds.
QStringList unmatched(const QStringList &originals, const QStringList &translations)
{
    QStringList faults;
    for (const QString &name : originals) {
        if (!translations.contains(name))
            faults << name + u": not translated"_s;
    }
    for (const QString &name : translations) {
        if (!originals.contains(name))
            faults << name + u": translates nothing"_s;
    }
    return faults;
}

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
    bool inside = false;
    for (const QString &line : readAll(path).split(u'\n')) {
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

QStringList translationFaults(const QString &original, const QString &translation)
{
    PageChecker originals(original), translations(translation);
    const QStringList pages = originals.pages(), translated = translations.pages();
    const QStringList figures = originals.figures(), redrawn = translations.figures();
    QStringList faults = unmatched(pages, translated) + unmatched(figures, redrawn);
    for (const QString &page : pages) {
        if (!translated.contains(page))
            continue;
        for (const QString &id : originals.anchors(page) - translations.anchors(page))
            faults << page + u": no place #"_s + id;
    }
    for (const QString &figure : figures) {
        if (redrawn.contains(figure) && checkFigure(original + u'/' + figure).drawing !=
                                            checkFigure(translation + u'/' + figure).drawing)
            faults << figure + u": drawn differently"_s;
    }
    return faults;
}

QStringList nameFaults(const QString &spanish, const QString &translation, const QString &texts,
                       const QString &section)
{
    static const QRegularExpression quoted(u"«([^»]+)»"_s);
    const QHash<QString, QStringList> translations = translationsIn(texts, section);
    QStringList faults;
    for (const QRegularExpressionMatch &match : quoted.globalMatch(spanish)) {
        const QString name = match.captured(1);
        const QStringList names = translations.value(asNamed(name));
        const bool named = std::any_of(names.begin(), names.end(), [&](const QString &own) {
            return isNamed(translation, own);
        });
        if (!names.isEmpty() && !named)
            faults << u"«%1» is not named “%2”"_s.arg(name, names.join(u"” or “"_s));
    }
    return faults;
}

QString languageOfFolder(const QString &name)
{
    for (int i = QLocale::C + 1; i <= QLocale::LastLanguage; ++i) {
        const auto language = static_cast<QLocale::Language>(i);
        if (QLocale::languageToString(language) == name)
            return QLocale::languageToCode(language);
    }
    return {};
}
