// SPDX-License-Identifier: GPL-3.0-or-later
#include "PageCheckers.h"

#include <QDir>
#include <QtTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kFolder = QStringLiteral(NUMORA_DOC_DIR);

/// The folders of translated pages, named after their languages.
QStringList translations()
{
    QStringList folders = QDir(kFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    folders.removeOne(u"figuras"_s);
    return folders;
}

PageChecker checkerOf(const QString &folder)
{
    if (folder == u".")
        return PageChecker(kFolder);
    return PageChecker(kFolder + u'/' + folder, languageOfFolder(folder), u"../estilo.css"_s);
}

void addRows(const QStringList &folders)
{
    QTest::addColumn<QString>("folder");
    for (const QString &folder : folders)
        QTest::newRow(qPrintable(folder)) << folder;
}

/// Each of them behind the name of its file.
QStringList in(const QString &file, const QStringList &faults)
{
    return faults.isEmpty() ? faults : QStringList{file + u": "_s + faults.join(u"; "_s)};
}

} // namespace

/// The pages and figures that ship with the program, in all their languages.
class TestPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesAndFiguresAreFit_data() { addRows(QStringList{u"."_s} + translations()); }
    void pagesAndFiguresAreFit()
    {
        QFETCH(QString, folder);
        PageChecker checker = checkerOf(folder);
        QVERIFY(!checker.pages().isEmpty() && !checker.figures().isEmpty());
        QStringList faults;
        for (const QString &page : checker.pages())
            faults += in(page, checker.faults(page));
        for (const QString &figure : checker.figures()) {
            faults += in(figure, checkFigure(kFolder + u'/' + folder + u'/' + figure).faults);
            if (!checker.picturesShown().contains(figure))
                faults << figure + u": shown on no page"_s;
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void translationsAreComplete_data() { addRows(translations()); }
    void translationsAreComplete()
    {
        QFETCH(QString, folder);
        QVERIFY2(!languageOfFolder(folder).isEmpty(), qPrintable(folder));
        const QString texts = kFolder + u"/../Numora.txt"_s;
        QVERIFY(QFile::exists(texts));
        QStringList faults = translationFaults(kFolder, kFolder + u'/' + folder);
        for (const QString &page : checkerOf(folder).pages())
            faults +=
                in(page, nameFaults(readAll(kFolder + u'/' + page),
                                    readAll(kFolder + u'/' + folder + u'/' + page), texts, folder));
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(TestPages)
#include "TestPages.moc"
