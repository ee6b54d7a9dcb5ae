#include "FigureChecker.h"
#include "NameChecker.h"
#include "PageChecker.h"
#include "TranslationChecker.h"

#include <QDir>
#include <QtTest>
#include <functional>

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

/// The folders of pages, relative to the one of the Spanish pages, which is ".".
QStringList folders()
{
    return QStringList{u"."_s} + translations();
}

PageChecker checkerOf(const QString &folder)
{
    if (folder == u".")
        return PageChecker(kFolder);
    return PageChecker(kFolder + u'/' + folder, languageOfFolder(folder), u"../estilo.css"_s);
}

QStringList figuresOf(const QString &folder)
{
    return QDir(kFolder + u'/' + folder + u"/figuras"_s)
        .entryList({u"*.svg"_s}, QDir::Files, QDir::Name);
}

/// One row for each file of each folder, named after both.
void addRows(const std::function<QStringList(const QString &folder)> &filesOf)
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    for (const QString &folder : folders()) {
        const QStringList names = filesOf(folder);
        QVERIFY(!names.isEmpty());
        for (const QString &name : names)
            QTest::newRow(qPrintable(folder + u'/' + name)) << folder << name;
    }
}

QString readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

/// The pages and figures that ship with the program, in all their languages.
class TestPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesAreFit_data();
    void pagesAreFit();
    void figuresAreFit_data();
    void figuresAreFit();
    void everyFigureIsShown_data();
    void everyFigureIsShown();
    void translationsAreComplete_data();
    void translationsAreComplete();
    void toolsAreNamedAsTheyAreCalled_data();
    void toolsAreNamedAsTheyAreCalled();
};

void TestPages::pagesAreFit_data()
{
    addRows([](const QString &folder) { return checkerOf(folder).pages(); });
}

void TestPages::pagesAreFit()
{
    QFETCH(QString, folder);
    QFETCH(QString, name);
    const QStringList faults = checkerOf(folder).faults(name);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void TestPages::figuresAreFit_data()
{
    addRows(figuresOf);
}

void TestPages::figuresAreFit()
{
    QFETCH(QString, folder);
    QFETCH(QString, name);
    const QString path = kFolder + u'/' + folder + u"/figuras/"_s + name;
    const QStringList faults = checkFigure(path).faults;
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void TestPages::everyFigureIsShown_data()
{
    QTest::addColumn<QString>("folder");
    for (const QString &folder : folders())
        QTest::newRow(qPrintable(folder)) << folder;
}

void TestPages::everyFigureIsShown()
{
    QFETCH(QString, folder);
    PageChecker checker = checkerOf(folder);
    const QStringList pages = checker.pages();
    for (const QString &name : pages)
        checker.faults(name);
    const QStringList names = figuresOf(folder);
    for (const QString &name : names)
        QVERIFY2(checker.picturesShown().contains(u"figuras/"_s + name), qPrintable(name));
}

void TestPages::translationsAreComplete_data()
{
    QTest::addColumn<QString>("folder");
    for (const QString &folder : translations())
        QTest::newRow(qPrintable(folder)) << folder;
}

void TestPages::translationsAreComplete()
{
    QFETCH(QString, folder);
    QVERIFY2(!languageOfFolder(folder).isEmpty(), qPrintable(folder));
    const QStringList faults = translationFaults(kFolder, kFolder + u'/' + folder);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void TestPages::toolsAreNamedAsTheyAreCalled_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    for (const QString &folder : translations()) {
        for (const QString &name : checkerOf(folder).pages())
            QTest::newRow(qPrintable(folder + u'/' + name)) << folder << name;
    }
}

void TestPages::toolsAreNamedAsTheyAreCalled()
{
    QFETCH(QString, folder);
    QFETCH(QString, name);
    const QString texts = kFolder + u"/../Numora.txt"_s;
    QVERIFY(QFile::exists(texts));
    const QStringList faults =
        nameFaults(readAll(kFolder + u'/' + name), readAll(kFolder + u'/' + folder + u'/' + name),
                   texts, folder);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

QTEST_GUILESS_MAIN(TestPages)
#include "TestPages.moc"
