#include "TranslationChecker.h"

#include "FigureChecker.h"
#include "PageChecker.h"

#include <QDir>
#include <QLocale>

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

QStringList pageFaults(const QString &original, const QString &translation)
{
    PageChecker originals(original);
    PageChecker translations(translation);
    const QStringList pages = originals.pages();
    const QStringList translated = translations.pages();
    QStringList faults = unmatched(pages, translated);
    for (const QString &page : pages) {
        if (!translated.contains(page))
            continue;
        const QSet<QString> missing = originals.anchors(page) - translations.anchors(page);
        for (const QString &id : missing)
            faults << page + u": no place #"_s + id;
    }
    return faults;
}

QStringList figureFaults(const QString &original, const QString &translation)
{
    const auto figures = [](const QString &folder) {
        return QDir(folder + u"/figuras"_s).entryList({u"*.svg"_s}, QDir::Files, QDir::Name);
    };
    const QStringList names = figures(original);
    const QStringList translated = figures(translation);
    QStringList faults = unmatched(names, translated);
    for (const QString &name : names) {
        const QString path = u"/figuras/"_s + name;
        if (translated.contains(name) &&
            drawingOf(original + path) != drawingOf(translation + path))
            faults << name + u": drawn differently"_s;
    }
    return faults;
}

} // namespace

QStringList translationFaults(const QString &original, const QString &translation)
{
    return pageFaults(original, translation) + figureFaults(original, translation);
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
