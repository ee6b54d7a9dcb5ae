// SPDX-License-Identifier: GPL-3.0-or-later
#include "PageCheckers.h"

#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList kElements =
    u"svg title desc g defs rect line circle ellipse polygon path polyline text tspan "
    "linearGradient radialGradient stop use"_s.split(u' ');

// Read by browsers and skipped by the renderer, so that the two would show different pictures.
const QStringList kForbiddenAttributes =
    u"class style filter mask clip-path marker-end marker-mid marker-start paint-order "
    "dominant-baseline baseline-shift dx dy"_s.split(u' ');

QStringList elementFaults(const QString &name, const QXmlStreamAttributes &attributes)
{
    QStringList faults;
    if (!kElements.contains(name))
        faults << u"<%1> is not drawn by the program"_s.arg(name);
    for (const QXmlStreamAttribute &attribute : attributes) {
        if (kForbiddenAttributes.contains(attribute.qualifiedName()))
            faults << u"%1= is not read by the program"_s.arg(attribute.qualifiedName());
    }
    if (name == u"text" && !attributes.hasAttribute(u"font-family"_s))
        faults << u"<text> without font-family"_s;
    return faults;
}

QString drawn(QString element, const QXmlStreamAttributes &attributes)
{
    if (element == u"text" || element == u"tspan")
        return element;
    for (const QXmlStreamAttribute &attribute : attributes)
        element += u" %1=\"%2\""_s.arg(attribute.qualifiedName(), attribute.value());
    return element;
}

QStringList sizeFaults(QSize size, QStringView viewBox)
{
    if (size.isEmpty())
        return {u"width and height in whole pixels are needed"_s};
    const QString box = u"0 0 %1 %2"_s.arg(size.width()).arg(size.height());
    return viewBox == box ? QStringList() : QStringList{u"viewBox is not \"%1\""_s.arg(box)};
}

} // namespace

FigureReport checkFigure(const QString &path)
{
    FigureReport report;
    bool titled = false;
    QXmlStreamReader xml(readAll(path));
    const auto note = [&](const QStringList &faults) {
        for (const QString &fault : faults)
            report.faults << u"line %1: %2"_s.arg(xml.lineNumber()).arg(fault);
    };
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = xml.name().toString();
        const QXmlStreamAttributes attributes = xml.attributes();
        note(elementFaults(name, attributes));
        report.drawing << drawn(name, attributes);
        titled = titled || name == u"title";
        if (name != u"svg")
            continue;
        report.size =
            QSize(attributes.value(u"width"_s).toInt(), attributes.value(u"height"_s).toInt());
        note(sizeFaults(report.size, attributes.value(u"viewBox"_s)));
    }
    if (xml.hasError())
        note({xml.errorString()});
    if (!titled)
        note({u"no <title>"_s});
    return report;
}
