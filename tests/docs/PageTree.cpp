// SPDX-License-Identifier: GPL-3.0-or-later
#include "PageTree.h"

#include <QXmlStreamReader>

namespace {

bool fits(const Element &element, const QString &name, const QString &className)
{
    return element.name == name && (className.isEmpty() || element.hasClass(className));
}

} // namespace

QList<const Element *> Element::own(const QString &which, const QString &className) const
{
    QList<const Element *> found;
    for (const auto &child : children) {
        if (fits(*child, which, className))
            found << child.get();
    }
    return found;
}

QList<const Element *> Element::all(const QString &which, const QString &className) const
{
    QList<const Element *> found;
    for (const auto &child : children) {
        if (fits(*child, which, className))
            found << child.get();
        found += child->all(which, className);
    }
    return found;
}

const Element *Element::place(const QString &id) const
{
    for (const auto &child : children) {
        if (child->attribute(QStringLiteral("id")) == id)
            return child.get();
        if (const Element *inside = child->place(id))
            return inside;
    }
    return nullptr;
}

std::shared_ptr<const Element> pageTree(const QString &text)
{
    const auto root = std::make_shared<Element>();
    QList<Element *> open{root.get()};
    QXmlStreamReader xml(text);
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement: {
            const auto element = std::make_shared<Element>();
            element->name = xml.name().toString();
            element->attributes = xml.attributes();
            element->line = xml.lineNumber();
            element->parent = open.last();
            open.last()->children << element;
            open << element.get();
            break;
        }
        case QXmlStreamReader::EndElement:
            open.removeLast();
            break;
        case QXmlStreamReader::Characters:
            for (Element *element : open)
                element->text += xml.text();
            break;
        default:
            break;
        }
    }
    return root;
}
