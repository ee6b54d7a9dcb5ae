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
    /// `folder` holds the pages (*.html) and the style sheet estilo.css.
    explicit PageChecker(const QString &folder);

    /// File names of the pages, sorted.
    QStringList pages() const;

    /// What is wrong with one page, empty when it is fit. Each fault names its line.
    QStringList faults(const QString &page);

    /// Paths, relative to the folder, of the pictures that the pages checked so far show.
    QSet<QString> picturesShown() const { return m_pictures; }

private:
    friend class PageReading;

    /// The ids of a page, or an empty set where there is no such page.
    const QSet<QString> &anchors(const QString &page);
    /// Whether the file exists under exactly this name, letter case included.
    bool exists(const QString &relativePath) const;

    QString m_folder;
    QSet<QString> m_classes;
    QSet<QString> m_pictures;
    QHash<QString, QSet<QString>> m_anchors;
};
