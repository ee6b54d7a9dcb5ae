// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QXmlStreamAttributes>
#include <memory>

/// An element of a page with all that stands in it.
struct Element
{
    QString name;
    QXmlStreamAttributes attributes;
    qint64 line = 0;
    QString text; ///< of it and of all in it, blanks as they stand
    const Element *parent = nullptr;
    QList<std::shared_ptr<Element>> children;

    QString attribute(const QString &which) const { return attributes.value(which).toString(); }
    bool hasClass(const QString &which) const
    {
        return attribute(QStringLiteral("class")).split(u' ').contains(which);
    }
    /// The elements of that name within this one, in the order of the page, of a class if one is
    /// given.
    QList<const Element *> all(const QString &which, const QString &className = {}) const;
    /// The children of that name.
    QList<const Element *> own(const QString &which, const QString &className = {}) const;
    /// The element of that id within this one; null when there is none.
    const Element *place(const QString &id) const;
};

/// A page read whole; what cannot be read of it is left out.
std::shared_ptr<const Element> pageTree(const QString &text);
