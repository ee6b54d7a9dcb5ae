// SPDX-License-Identifier: GPL-3.0-or-later
#include "PageCheckers.h"

#include <QDir>
#include <QRegularExpression>
#include <QUrl>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList kVoid = u"meta link img br hr col"_s.split(u' ');

const QStringList kElements =
    u"html head meta title link body header footer nav main section h1 h2 h3 p ul ol li dl dt dd "
    "table thead tbody tr th td img a b i em strong sup sub span var code pre kbd br hr "
    "blockquote details summary script"_s.split(u' ');

} // namespace

QString readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// One pass over one page.
class PageReading
{
public:
    PageReading(PageChecker &checker, const QString &page, const QString &text)
        : m_checker(checker), m_page(page), m_xml(text)
    {
        checkSelfClosed(text);
    }

    QStringList read()
    {
        while (!m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            if (token == QXmlStreamReader::StartElement)
                startElement();
            else if (token == QXmlStreamReader::EndElement)
                m_open.removeLast();
        }
        if (m_xml.hasError())
            fault(m_xml.errorString());
        if (!m_titled)
            fault(u"no title"_s);
        if (!m_styled)
            fault(m_checker.m_sheet + u" is not linked as type text/css"_s);
        if (m_heading == 0)
            fault(u"no heading"_s);
        return m_faults;
    }

private:
    void fault(const QString &what)
    {
        m_faults << u"line %1: %2"_s.arg(m_xml.lineNumber()).arg(what);
    }

    // XML closes <p/> where HTML only opens it: the two readers would see different pages.
    void checkSelfClosed(const QString &text)
    {
        static const QRegularExpression selfClosed(u"<([A-Za-z][A-Za-z0-9]*)[^<>]*/>"_s);
        for (const QRegularExpressionMatch &match : selfClosed.globalMatch(text)) {
            if (!kVoid.contains(match.captured(1)))
                fault(u"<%1/> is not closed for a browser"_s.arg(match.captured(1)));
        }
    }

    void startElement()
    {
        const QString name = m_xml.name().toString();
        const QXmlStreamAttributes attributes = m_xml.attributes();
        if (!kElements.contains(name))
            fault(u"<%1> is not one of the elements that both viewers show"_s.arg(name));
        // The program's viewer sets an exponent of an exponent on the line of the first.
        if ((name == u"sup" || name == u"sub") &&
            (m_open.contains(u"sup"_s) || m_open.contains(u"sub"_s)))
            fault(u"nested <sup> or <sub>"_s);
        checkCommon(attributes);
        if (name == u"html" && attributes.value(u"lang"_s) != m_checker.m_language)
            fault(u"lang is not \"%1\""_s.arg(m_checker.m_language));
        else if (name == u"link")
            checkStyleSheet(attributes);
        else if (name == u"script" && attributes.value(u"src"_s) != script())
            fault(u"a script other than "_s + script());
        else if (name == u"a")
            checkLink(attributes);
        else if (name == u"img")
            checkImage(attributes);
        else if (name.size() == 2 && name.at(0) == u'h' && name.at(1).isDigit())
            checkHeading(name.at(1).digitValue());
        m_open << name;
        if (name == u"title") {
            m_titled = !m_xml.readElementText().trimmed().isEmpty();
            m_open.removeLast();
        }
    }

    /// The only one: it stands beside the style sheet.
    QString script() const
    {
        return QString(m_checker.m_sheet).replace(u"estilo.css"_s, u"pagina.js"_s);
    }

    void checkCommon(const QXmlStreamAttributes &attributes)
    {
        if (attributes.hasAttribute(u"style"_s))
            fault(u"style= belongs in estilo.css"_s);
        const QStringList classes =
            attributes.value(u"class"_s).toString().split(u' ', Qt::SkipEmptyParts);
        for (const QString &name : classes) {
            if (!m_checker.m_classes.contains(name))
                fault(u"class \"%1\" is not in estilo.css"_s.arg(name));
        }
        const QString id = attributes.value(u"id"_s).toString();
        if (!id.isEmpty() && m_ids.contains(id))
            fault(u"id \"%1\" is used twice"_s.arg(id));
        m_ids << id;
    }

    void checkStyleSheet(const QXmlStreamAttributes &attributes)
    {
        m_styled = m_styled || (attributes.value(u"href"_s) == m_checker.m_sheet &&
                                attributes.value(u"type"_s) == u"text/css");
    }

    void checkLink(const QXmlStreamAttributes &attributes)
    {
        const QString href = attributes.value(u"href"_s).toString();
        const QUrl url(href);
        if (href.isEmpty() || !url.isValid())
            return fault(u"link without a target"_s);
        if (!url.scheme().isEmpty()) {
            if (url.scheme() != u"https" && url.scheme() != u"numora")
                fault(u"external link is not https: "_s + href);
            return;
        }
        const QString page = url.path().isEmpty() ? m_page : url.path();
        if (!m_checker.exists(page))
            fault(u"broken link: "_s + href);
        else if (url.hasFragment() && !m_checker.anchors(page).contains(url.fragment()))
            fault(u"no such place: "_s + href);
    }

    void checkImage(const QXmlStreamAttributes &attributes)
    {
        const QString source = QUrl(attributes.value(u"src"_s).toString()).path();
        if (attributes.value(u"alt"_s).trimmed().isEmpty())
            fault(u"picture without an alternative text: "_s + source);
        if (!m_checker.exists(source))
            return fault(u"missing picture: "_s + source);
        m_checker.m_pictures << source;
        const QSize shown(attributes.value(u"width"_s).toInt(),
                          attributes.value(u"height"_s).toInt());
        const QSize own = checkFigure(m_checker.m_folder + u'/' + source).size;
        if (shown != own)
            fault(u"%1 is %2 by %3 pixels"_s.arg(source).arg(own.width()).arg(own.height()));
    }

    void checkHeading(int level)
    {
        if (level > m_heading + 1)
            fault(u"h%1 after h%2"_s.arg(level).arg(m_heading));
        if (level == 1 && m_heading != 0)
            fault(u"more than one h1"_s);
        m_heading = level;
    }

    PageChecker &m_checker;
    const QString m_page;
    QXmlStreamReader m_xml;
    QStringList m_faults;
    QStringList m_open;
    QSet<QString> m_ids;
    int m_heading = 0;
    bool m_titled = false;
    bool m_styled = false;
};

PageChecker::PageChecker(const QString &folder, const QString &language, const QString &sheet)
    : m_folder(folder), m_language(language), m_sheet(sheet)
{
    static const QRegularExpression className(u"\\.([a-z][a-z0-9-]*)(?=[^{}]*\\{)"_s);
    static const QRegularExpression comment(u"/\\*.*?\\*/"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    const QString rules = readAll(folder + u'/' + sheet).remove(comment);
    for (const QRegularExpressionMatch &match : className.globalMatch(rules))
        m_classes << match.captured(1);
}

QStringList PageChecker::pages() const
{
    return QDir(m_folder).entryList({u"*.html"_s}, QDir::Files, QDir::Name);
}

QStringList PageChecker::figures() const
{
    const QDir folder(m_folder + u"/figuras"_s);
    return folder.entryList({u"*.svg"_s}, QDir::Files, QDir::Name)
        .replaceInStrings(QRegularExpression(u"^"_s), u"figuras/"_s);
}

QStringList PageChecker::faults(const QString &page)
{
    return PageReading(*this, page, readAll(m_folder + u'/' + page)).read();
}

const QSet<QString> &PageChecker::anchors(const QString &page)
{
    QSet<QString> &ids = m_anchors[page];
    if (ids.isEmpty()) {
        QXmlStreamReader xml(readAll(m_folder + u'/' + page));
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement &&
                xml.attributes().hasAttribute(u"id"_s))
                ids << xml.attributes().value(u"id"_s).toString();
        }
    }
    return ids;
}

/// Whether the file exists within the folder (file names tell letter cases apart here).
bool PageChecker::exists(const QString &relativePath) const
{
    return !relativePath.isEmpty() && !QDir::isAbsolutePath(relativePath) &&
           !relativePath.contains(u".."_s) && QFileInfo(m_folder + u'/' + relativePath).isFile();
}
