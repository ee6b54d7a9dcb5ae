#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/// Checks the introduction pages of one folder: that they are well-formed, complete and accessible,
/// that nothing they point to is missing, and that they keep to what both their viewers can show.
class PageChecker
{
public:
    /// `folder` holds the pages (*.html), all in the language of that ISO 639 code. `sheet` is the
    /// path from there to the style sheet, as the pages must write it.
    explicit PageChecker(const QString &folder, const QString &language = QStringLiteral("es"),
                         const QString &sheet = QStringLiteral("estilo.css"));

    /// File names of the pages, sorted.
    QStringList pages() const;

    /// What is wrong with one page, empty when it is fit. Each fault names its line.
    QStringList faults(const QString &page);

    /// The ids of a page, or an empty set where there is no such page.
    const QSet<QString> &anchors(const QString &page);

    /// Paths, relative to the folder, of the pictures that the pages checked so far show.
    QSet<QString> picturesShown() const { return m_pictures; }

private:
    friend class PageReading;

    /// Whether the file exists under exactly this name, letter case included.
    bool exists(const QString &relativePath) const;

    QString m_folder;
    QString m_language;
    QString m_sheet;
    QSet<QString> m_classes;
    QSet<QString> m_pictures;
    QHash<QString, QSet<QString>> m_anchors;
};
