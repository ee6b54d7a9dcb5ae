// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QSet>
#include <QSize>
#include <QStringList>

/// What is known of an SVG figure of the pages.
struct FigureReport
{
    QStringList faults;  ///< empty when the figure is fit; each names its line
    QSize size;          ///< in pixels, not valid where none is stated
    QStringList drawing; ///< what it draws besides its words, of which only the places in it
};

/// Whether the figure is well-formed, titled, sized, and drawn with nothing that the program's own
/// SVG renderer would leave out.
FigureReport checkFigure(const QString &path);

/// Checks the pages of one folder: that they are well-formed, complete and accessible, that nothing
/// they point to is missing, and that they keep to what both their viewers can show.
class PageChecker
{
public:
    /// `folder` holds the pages in the language of that ISO 639 code. `sheet` is the path from
    /// there to the style sheet, as the pages must write it.
    explicit PageChecker(const QString &folder, const QString &language = QStringLiteral("es"),
                         const QString &sheet = QStringLiteral("estilo.css"));

    QStringList pages() const;
    QStringList figures() const;

    /// What is wrong with one page; each fault names its line.
    QStringList faults(const QString &page);

    /// The ids of a page, none where there is no such page.
    const QSet<QString> &anchors(const QString &page);

    /// Paths, relative to the folder, of the pictures that the pages checked so far show.
    QSet<QString> picturesShown() const { return m_pictures; }

private:
    friend class PageReading;

    bool exists(const QString &relativePath) const;

    QString m_folder;
    QString m_language;
    QString m_sheet;
    QSet<QString> m_classes;
    QSet<QString> m_pictures;
    QHash<QString, QSet<QString>> m_anchors;
};

/// What is wrong with the folder `translation` as a translation of the pages in `original`: pages
/// and figures that only one of them has, places that links of the original lead to and the
/// translation lacks, figures that differ in more than their words. Each fault names its file.
QStringList translationFaults(const QString &original, const QString &translation);

/// The tools, fields and buttons that the Spanish text of a page names in «», and that its
/// translation does not name in quotes as the interface does. `texts` is the file with the
/// interface's translations; `section` is its section for that language. What is quoted but is no
/// text of the interface is left alone. Of two texts that differ in their mnemonic alone, either
/// will do.
QStringList nameFaults(const QString &spanish, const QString &translation, const QString &texts,
                       const QString &section);

/// Folded text of a page that is of no kind, without a summary, or within another one.
QStringList foldFaults(const QString &page);

/// What a page lacks as a page of the course: aims, exercises with their solutions, questions with
/// hints and answers, others to be answered on the spot, contents that list all sections.
QStringList courseFaults(const QString &page);

/// Where two pages differ in what a translation keeps: sections, folds, links that act, numbers and
/// answers, in their order.
QStringList parityFaults(const QString &original, const QString &translation);

/// A number that a page asks to be computed again.
struct NumberOfPage
{
    QString expression;
    QString shown; ///< without blanks, with the keyboard's minus
    qint64 line = 0;
};
QList<NumberOfPage> numbersOf(const QString &page);

/// The ISO 639 code of the language that a folder of translated pages is named after in English
/// ("en" for "English"), empty where there is no such language.
QString languageOfFolder(const QString &name);

/// The text of a file, empty where it cannot be read.
QString readAll(const QString &path);
