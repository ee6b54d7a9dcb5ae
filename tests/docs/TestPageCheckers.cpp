// SPDX-License-Identifier: GPL-3.0-or-later
#include "PageCheckers.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::Literals::StringLiterals;

namespace {

void write(const QString &path, const QString &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}

QString svg(const QString &body)
{
    return uR"(<svg xmlns="http://www.w3.org/2000/svg" width="40" height="20" viewBox="0 0 40 20">)"_s
           u"<title>t</title>%1</svg>"_s.arg(body);
}

QString page(const QString &head, const QString &body)
{
    return u"<!DOCTYPE html>\n<html lang=\"es\"><head>%1</head>\n<body>\n<h1 id=\"a\">T</h1>\n%2\n</body></html>"_s
        .arg(head, body);
}

const QString kHead =
    uR"(<title>T</title><link rel="stylesheet" type="text/css" href="estilo.css"/>)"_s;

const QString kFit =
    uR"(<p class="caja"><a href="otra.html#b">x</a> <a href="https://a.es/">y</a> <a href="#a">z</a>)"_s
    uR"(<img src="f/f.svg" width="40" height="20" alt="t"/></p><h2>a</h2><h3>b</h3><h2>c</h2>)"_s;

} // namespace

/// On pages and figures made up here, that the checkers find each kind of fault and nothing else.
class TestPageCheckers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultsAreFound_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("fault"); // a part of the one fault expected, empty for none
        const auto row = [](const char *name, const QString &text, const QString &fault) {
            QTest::newRow(name) << text << fault;
        };
        const auto body = [&](const char *name, const QString &text, const QString &fault) {
            row(name, page(kHead, text), fault);
        };
        body("fit", kFit, QString());
        body("page that is not there", u"<p><a href=\"nada.html\">x</a></p>"_s,
             u"broken link: nada.html"_s);
        body("letter case of a page", u"<p><a href=\"Otra.html\">x</a></p>"_s,
             u"broken link: Otra.html"_s);
        body("place that is not there", u"<p><a href=\"#b\">x</a></p>"_s, u"no such place: #b"_s);
        body("place on another page", u"<p><a href=\"otra.html#a\">x</a></p>"_s,
             u"no such place: otra.html#a"_s);
        body("link out of the folder", u"<p><a href=\"../Doc/otra.html\">x</a></p>"_s,
             u"broken link"_s);
        body("link to the root", u"<p><a href=\"/etc/hosts\">x</a></p>"_s, u"broken link"_s);
        body("http", u"<p><a href=\"http://a.es/\">x</a></p>"_s, u"not https"_s);
        body("javascript", u"<p><a href=\"javascript:f()\">x</a></p>"_s, u"not https"_s);
        body("picture that is not there", u"<p><img src=\"f/g.svg\" alt=\"t\"/></p>"_s,
             u"missing picture: f/g.svg"_s);
        body("letter case of a folder", u"<p><img src=\"F/f.svg\" alt=\"t\"/></p>"_s,
             u"missing picture: F/f.svg"_s);
        body("picture without alt",
             u"<p><img src=\"f/f.svg\" width=\"40\" height=\"20\" alt=\" \"/></p>"_s,
             u"alternative text"_s);
        body("distorted picture",
             u"<p><img src=\"f/f.svg\" width=\"40\" height=\"30\" alt=\"t\"/></p>"_s,
             u"is 40 by 20"_s);
        body("skipped heading", u"<h3>x</h3>"_s, u"h3 after h1"_s);
        body("two titles", u"<h1>x</h1>"_s, u"more than one h1"_s);
        body("nested exponents", u"<p>2<sup>2<sup>n</sup></sup></p>"_s, u"nested"_s);
        body("script", u"<script src=\"pagina.js\"></script>"_s, QString());
        body("another script", u"<script src=\"otra.js\"></script>"_s, u"pagina.js"_s);
        body("element unknown to the program", u"<figure>x</figure>"_s, u"<figure>"_s);
        body("class without a rule", u"<p class=\"caja nada\">x</p>"_s, u"class \"nada\""_s);
        body("inline style", u"<p style=\"color: black\">x</p>"_s, u"style="_s);
        body("id twice", u"<p id=\"a\">x</p>"_s, u"used twice"_s);
        body("self-closed element", u"<p/>"_s, u"<p/>"_s);
        const QString empty = page(kHead, QString()), blank = svg(QString());
        row("no title", page(kHead.mid(kHead.indexOf(u"<link"_s)), QString()), u"no title"_s);
        row("no style sheet", page(u"<title>T</title>"_s, QString()), u"estilo.css"_s);
        row("no language", QString(empty).remove(u" lang=\"es\""_s), u"lang"_s);
        row("not well-formed", QString(empty).replace(u"</h1>"_s, u"</h2>"_s), u"mismatch"_s);

        row("figure", svg(u"<text font-family=\"sans-serif\">x</text>"_s), QString());
        row("filter", svg(u"<filter id=\"f\"/>"_s), u"<filter>"_s);
        row("embedded page", svg(u"<foreignObject/>"_s), u"<foreignObject>"_s);
        row("masked", svg(u"<rect mask=\"url(#m)\"/>"_s), u"mask="_s);
        row("CSS class", svg(u"<rect class=\"r\"/>"_s), u"class="_s);
        row("text without a face", svg(u"<text>x</text>"_s), u"font-family"_s);
        row("no size", QString(blank).remove(u"width=\"40\" "_s), u"whole pixels"_s);
        row("scaled", QString(blank).replace(u"0 0 40"_s, u"0 0 80"_s), u"viewBox"_s);
        row("figure without a title", QString(blank).remove(u"<title>t</title>"_s), u"<title>"_s);
        row("figure not well-formed", svg(u"<g></g></g>"_s), u"line 1"_s);
    }
    void faultsAreFound()
    {
        QFETCH(QString, text);
        QFETCH(QString, fault);
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"f"_s));
        write(folder.filePath(u"estilo.css"_s), u"/* .nada { */\n.caja { color: red; }"_s);
        write(folder.filePath(u"otra.html"_s), u"<html><p id=\"b\">x</p></html>"_s);
        write(folder.filePath(u"f/f.svg"_s), svg(QString()));
        if (QByteArray(QTest::currentDataTag()).startsWith("letter case") &&
            QFile::exists(folder.filePath(u"OTRA.html"_s)))
            QSKIP("names have no letter case here");
        const QString file = text.startsWith(u"<svg") ? u"esta.svg"_s : u"esta.html"_s;
        write(folder.filePath(file), text);

        const QStringList faults = file.endsWith(u"svg") ? checkFigure(folder.filePath(file)).faults
                                                         : PageChecker(folder.path()).faults(file);
        QCOMPARE(faults.size(), fault.isEmpty() ? 0 : 1);
        QVERIFY2(faults.join(u' ').contains(fault), qPrintable(faults.join(u' ')));
    }

    void pagesOfAnotherLanguage()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"English"_s));
        write(folder.filePath(u"estilo.css"_s), u".caja { color: red; }"_s);
        const QString spanish = page(kHead, u"<p class=\"caja\">x</p>"_s);
        QString english = spanish;
        english.replace(u"\"es\""_s, u"\"en\""_s).replace(u"estilo.css"_s, u"../estilo.css"_s);
        write(folder.filePath(u"English/hecha.html"_s), english);
        write(folder.filePath(u"English/copiada.html"_s), spanish);

        QCOMPARE(languageOfFolder(u"English"_s), u"en"_s);
        QCOMPARE(languageOfFolder(u"Inglés"_s), QString());
        PageChecker checker(folder.filePath(u"English"_s), u"en"_s, u"../estilo.css"_s);
        QCOMPARE(checker.faults(u"hecha.html"_s), QStringList());
        QCOMPARE(checker.faults(u"copiada.html"_s).size(), 2); // the language and the style sheet
    }

    /// A page of the course, and what is wrong with it once a part of it is written otherwise.
    void courseFaultsAreFound_data()
    {
        QTest::addColumn<QString>("part");
        QTest::addColumn<QString>("instead");
        QTest::addColumn<QString>("fault");  // empty for none
        QTest::addColumn<QString>("parity"); // where the other way round is the translation
        const auto row = [](const QString &part, const QString &instead, const QString &fault,
                            const QString &parity = {}) {
            QTest::newRow(qPrintable(part + u" → "_s + instead))
                << part << instead << fault << parity;
        };
        row(u"Pista"_s, u"Hint"_s, {});
        row(u">e0<"_s,
            u"><details class=\"prueba\"><summary>P</summary><details class=\"paso\">"
            "<summary>1</summary></details></details><"_s,
            {}, u"details prueba"_s);
        row(u"class=\"pista\""_s, u"class=\"otra\""_s, u"fold of no kind"_s, u"details otra"_s);
        row(u"class=\"pista\""_s, u"class=\"paso\""_s, u"paso within"_s, u"details paso"_s);
        row(u"<summary>Pista</summary>"_s, {}, u"without a summary"_s);
        row(u">e0<"_s,
            u"><details class=\"pista\"><summary>P</summary><details class=\"pista\">"
            "<summary>1</summary></details></details><"_s,
            u"pista within pista"_s, u"details pista"_s);
        row(u"objetivos"_s, u"otros"_s, u"box of aims"_s);
        row(u"Curso.html"_s, u"Otra.html"_s, u"map of the course"_s);
        row(u"<a href=\"#pensar\">x</a>"_s, {}, u"contents do not list"_s);
        row(u"<li>e0<details class=\"solucion\"><summary>S</summary>"_s,
            u"<li>e0<details class=\"pista\"><summary>S</summary>"_s, u"without a solucion"_s,
            u"details pista"_s);
        row(u"<li>e0"_s, u"</ol><p/><ol class=\"o\"><li>e0"_s, {});
        row(u"<li>p0"_s, u"<li>y</li><li>p0"_s, u"without a pista"_s);
        row(u"pregunta/r1"_s, u"pregunta/r2"_s, u"no link asks: r1"_s, u"numora:pregunta/r2"_s);
        row(u"id=\"r1\" data-respuesta=\"sí\""_s, u"id=\"r1\" data-respuesta=\"yes\""_s, {});
        row(u"id=\"r1\" data-respuesta=\"sí\""_s, u"id=\"r1\" data-respuesta=\"no\""_s, {},
            u"data-respuesta no"_s);
        row(u"id=\"r1\" data-respuesta=\"sí\""_s, u"id=\"r1\""_s, u"without its answer"_s,
            u"the other has numora:pregunta/r1"_s);
        row(u"numora:practicas/"_s, u"https://"_s, u"too few exercises"_s,
            u"numora:practicas/rsa.t where"_s);
        row(u"data-calcula=\"1+1\""_s, u"data-calcula=\"2\""_s, {}, u"data-calcula 2"_s);
        row(u"data-calcula"_s, u"data-otra"_s, u"too few numbers"_s, u"nothing"_s);
        row(u"<section id=\"leer\">"_s, u"<section id=\"otra\">"_s, u"last sections"_s,
            u"section #leer"_s);
    }
    void courseFaultsAreFound()
    {
        QFETCH(QString, part);
        QFETCH(QString, instead);
        QFETCH(QString, fault);
        QFETCH(QString, parity);
        const auto items = [](int count, const QString &item) {
            QString all;
            for (int i = 0; i < count; ++i)
                all += QString(item).replace(u'~', QString::number(i));
            return all;
        };
        const auto fold = [](const QString &kind, const QString &summary) {
            return u"<details class=\"%1\"><summary>%2</summary><p>a</p></details>"_s.arg(kind,
                                                                                          summary);
        };
        QString sections, contents;
        for (const QString &id : u"pruebalo ejercicios pensar recuerdas leer"_s.split(u' ')) {
            contents += u"<a href=\"#%1\">x</a>"_s.arg(id);
            sections += u"<section id=\"%1\"><ol>%2</ol></section>"_s.arg(
                id,
                id == u"ejercicios"
                    ? items(10, u"<li>e~"_s + fold(u"solucion"_s, u"S"_s) +
                                    u"<a href=\"numora:practicas/rsa.t\">p</a></li>"_s)
                : id == u"pensar" ? items(3, u"<li>p~"_s + fold(u"pista"_s, u"Pista"_s) +
                                                 fold(u"respuesta"_s, u"R"_s) + u"</li>"_s)
                : id == u"recuerdas"
                    ? items(3,
                            u"<li id=\"r~\" data-respuesta=\"sí\"><a href=\"numora:pregunta/r~\">"
                            "x</a>"_s +
                                fold(u"respuesta"_s, u"R"_s) + u"</li>"_s)
                    : items(10, u"<span data-calcula=\"1+1\">2</span>"_s));
        }
        const QString fit =
            u"<body><table class=\"caja objetivos\"><tr><td><ul>%1</ul><p class=\"antes\">"
            "<a href=\"Curso.html\">x</a></p></td></tr></table><nav>%2</nav>%3</body>"_s.arg(
                items(3, u"<li>a</li>"_s), contents, sections);
        QVERIFY(fit.contains(part));
        const QString other = QString(fit).replace(part, instead);
        const QStringList faults = foldFaults(other) + courseFaults(other);
        QVERIFY2(faults.isEmpty() == fault.isEmpty() && faults.join(u' ').contains(fault),
                 qPrintable(faults.join(u'\n')));
        const QString differs = parityFaults(fit, other).join(u' ');
        QVERIFY2(differs.isEmpty() == parity.isEmpty() && differs.contains(parity),
                 qPrintable(differs));
    }

    void translationFaultsAreFound_data()
    {
        QTest::addColumn<QString>("file"); // in the folder of the translation
        QTest::addColumn<QString>("text"); // what it holds, null to leave the file out
        QTest::addColumn<QString>("fault");
        const auto row = [](const char *name, const QString &file, const QString &text,
                            const QString &fault) { QTest::newRow(name) << file << text << fault; };
        const QString words =
            u"<text x=\"%1\" font-family=\"sans-serif\">%2</text><rect x=\"%3\"/>"_s;
        row("fit", u"p.html"_s, page(kHead, u"<h2 id=\"b\">x</h2>"_s), QString());
        row("page left out", u"p.html"_s, QString(), u"p.html: not translated"_s);
        row("page of its own", u"q.html"_s, page(kHead, QString()),
            u"q.html: translates nothing"_s);
        row("place left out", u"p.html"_s, page(kHead, QString()), u"p.html: no place #b"_s);
        row("figure left out", u"figuras/f.svg"_s, QString(), u"figuras/f.svg: not translated"_s);
        row("other words", u"figuras/f.svg"_s, svg(words.arg(u"9"_s, u"two"_s, u"1"_s)), QString());
        row("other drawing", u"figuras/f.svg"_s, svg(words.arg(u"1"_s, u"two"_s, u"2"_s)),
            u"figuras/f.svg: drawn differently"_s);
        row("words left out", u"figuras/f.svg"_s, svg(u"<rect x=\"1\"/>"_s),
            u"figuras/f.svg: drawn differently"_s);
    }
    void translationFaultsAreFound()
    {
        QFETCH(QString, file);
        QFETCH(QString, text);
        QFETCH(QString, fault);
        QTemporaryDir folder;
        const QString translation = folder.filePath(u"English"_s);
        for (const QString &place : {folder.path(), translation}) {
            QVERIFY(QDir().mkpath(place + u"/figuras"_s));
            write(place + u"/p.html"_s, page(kHead, u"<p id=\"b\">x</p>"_s));
            write(place + u"/figuras/f.svg"_s,
                  svg(u"<text x=\"1\" font-family=\"sans-serif\">dos</text><rect x=\"1\"/>"_s));
        }
        if (text.isNull())
            QVERIFY(QFile::remove(translation + u'/' + file));
        else
            write(translation + u'/' + file, text);

        const QStringList faults = translationFaults(folder.path(), translation);
        QCOMPARE(faults, fault.isEmpty() ? QStringList() : QStringList{fault});
    }

    void nameFaultsAreFound_data()
    {
        QTest::addColumn<QString>("translation"); // of «Probar», «Otra cosa» and «Abrir»
        QTest::addColumn<int>("faults");
        QTest::newRow("as they are called") << u"“Try it’s” “Open”"_s << 0;
        QTest::newRow("with the other mnemonic") << u"“Test” “Open”"_s << 0;
        QTest::newRow("by another name") << u"“Attempt” “Open”"_s << 1;
        QTest::newRow("as in another language") << u"“Essayer” “Open”"_s << 1;
        QTest::newRow("within a longer name") << u"“Test all” “Open”"_s << 1;
        QTest::newRow("without quotes") << u"Test, Open"_s << 2;
    }
    void nameFaultsAreFound()
    {
        QFETCH(QString, translation);
        QFETCH(int, faults);
        QTemporaryDir folder;
        const QString texts = folder.filePath(u"textos.txt"_s);
        write(texts, u"[French]\n&Probar=&Essayer\n[English]\n&Probar=&Try it's\nPr&obar=T&est\n"_s
                     u"&Abrir…=&Open…\n"_s);
        const QString spanish = u"«Probar» «Otra cosa» «Abrir»"_s;
        QCOMPARE(nameFaults(spanish, translation, texts, u"English"_s).size(), faults);
    }
};

QTEST_GUILESS_MAIN(TestPageCheckers)
#include "TestPageCheckers.moc"
