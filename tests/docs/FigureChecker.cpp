#include "FigureChecker.h"

#include <QFile>
#include <QSet>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

const QSet<QString> kElements{u"svg"_s,     u"title"_s,   u"desc"_s,           u"g"_s,
                              u"defs"_s,    u"rect"_s,    u"line"_s,           u"circle"_s,
                              u"ellipse"_s, u"polygon"_s, u"path"_s,           u"polyline"_s,
                              u"text"_s,    u"tspan"_s,   u"linearGradient"_s, u"radialGradient"_s,
                              u"stop"_s,    u"use"_s};

// Read by browsers and skipped by the renderer, so that the two would show different pictures.
const QSet<QString> kForbiddenAttributes{u"class"_s,
                                         u"style"_s,
                                         u"filter"_s,
                                         u"mask"_s,
                                         u"clip-path"_s,
                                         u"marker-end"_s,
                                         u"marker-mid"_s,
                                         u"marker-start"_s,
                                         u"paint-order"_s,
                                         u"dominant-baseline"_s,
                                         u"baseline-shift"_s,
                                         u"dx"_s,
                                         u"dy"_s};

class Figure
{
public:
    explicit Figure(QXmlStreamReader &xml) : m_xml(xml) {}

    FigureReport read()
    {
        while (!m_xml.atEnd()) {
            if (m_xml.readNext() == QXmlStreamReader::StartElement)
                startElement();
        }
        if (m_xml.hasError())
            fault(m_xml.errorString());
        if (!m_titled)
            fault(u"no <title>"_s);
        return m_report;
    }

private:
    void fault(const QString &what)
    {
        m_report.faults << u"line %1: %2"_s.arg(m_xml.lineNumber()).arg(what);
    }

    void startElement()
    {
        const QString name = m_xml.name().toString();
        if (!kElements.contains(name))
            fault(u"<%1> is not drawn by the program"_s.arg(name));
        const QXmlStreamAttributes attributes = m_xml.attributes();
        for (const QXmlStreamAttribute &attribute : attributes) {
            if (kForbiddenAttributes.contains(attribute.qualifiedName().toString()))
                fault(u"%1= is not read by the program"_s.arg(attribute.qualifiedName()));
        }
        m_titled = m_titled || name == u"title";
        if (name == u"text" && !attributes.hasAttribute(u"font-family"_s))
            fault(u"<text> without font-family"_s);
        if (name == u"svg")
            readSize(attributes);
    }

    void readSize(const QXmlStreamAttributes &attributes)
    {
        m_report.size =
            QSize(attributes.value(u"width"_s).toInt(), attributes.value(u"height"_s).toInt());
        const QString box = u"0 0 %1 %2"_s.arg(m_report.size.width()).arg(m_report.size.height());
        if (m_report.size.isEmpty())
            fault(u"width and height in whole pixels are needed"_s);
        else if (attributes.value(u"viewBox"_s) != box)
            fault(u"viewBox is not \"%1\""_s.arg(box));
    }

    QXmlStreamReader &m_xml;
    FigureReport m_report;
    bool m_titled = false;
};

} // namespace

FigureReport checkFigure(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{u"cannot be read: "_s + file.errorString()}, {}};
    QXmlStreamReader xml(&file);
    return Figure(xml).read();
}

QStringList drawingOf(const QString &path)
{
    QStringList drawn;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return drawn;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        QString element = xml.name().toString();
        if (element != u"text" && element != u"tspan") {
            const QXmlStreamAttributes attributes = xml.attributes();
            for (const QXmlStreamAttribute &attribute : attributes)
                element += u" %1=\"%2\""_s.arg(attribute.qualifiedName(), attribute.value());
        }
        drawn << element;
    }
    return drawn;
}
