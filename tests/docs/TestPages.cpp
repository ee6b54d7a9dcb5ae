// SPDX-License-Identifier: GPL-3.0-or-later
#include "PageCheckers.h"
#include "bignum/gateway/ModBignum.h"

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
        for (const QString &page : checker.pages()) {
            const QString text = readAll(kFolder + u'/' + folder + u'/' + page);
            faults += in(page, checker.faults(page) + foldFaults(text));
            // The map of the course is no lesson of it.
            if (page != u"Curso.html")
                faults += in(page, courseFaults(text));
            if (!text.contains(u"pagina.js\"></script>"_s))
                faults << page + u": without pagina.js"_s;
        }
        for (const QString &figure : checker.figures()) {
            faults += in(figure, checkFigure(kFolder + u'/' + folder + u'/' + figure).faults);
            if (!checker.picturesShown().contains(figure))
                faults << figure + u": shown on no page"_s;
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void numbersAreRight_data() { addRows(QStringList{u"."_s} + translations()); }
    void numbersAreRight()
    {
        QFETCH(QString, folder);
        QStringList faults;
        for (const QString &page : checkerOf(folder).pages()) {
            for (const auto &[expression, shown, line] :
                 numbersOf(readAll(kFolder + u'/' + folder + u'/' + page))) {
                QString difference =
                    u"(%1)-(%2)"_s.arg(QString(shown).replace(u',', u'.'), expression);
                if (Evalua(difference) != u"0")
                    faults << u"%1, line %2: %3 is not %4"_s.arg(page).arg(line).arg(expression,
                                                                                     shown);
            }
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
        for (const QString &page : checkerOf(folder).pages()) {
            const QString original = readAll(kFolder + u'/' + page);
            const QString translated = readAll(kFolder + u'/' + folder + u'/' + page);
            faults += in(page, nameFaults(original, translated, texts, folder) +
                                   parityFaults(original, translated));
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(TestPages)
#include "TestPages.moc"
