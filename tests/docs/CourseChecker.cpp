// SPDX-License-Identifier: GPL-3.0-or-later
#include "PageCheckers.h"
#include "PageTree.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype kExercises = 10, kPractised = 5, kLeastQuestions = 3, kMostQuestions = 5,
                    kNumbers = 10;

const QStringList kFolds = u"pista respuesta solucion prueba paso"_s.split(u' ');
const QStringList kLastSections = u"pruebalo ejercicios pensar recuerdas leer"_s.split(u' ');

/// Collects what is wrong, with its line.
class Faults
{
public:
    void operator()(bool fit, const Element &where, const QString &what)
    {
        if (!fit)
            list << u"line %1: %2"_s.arg(where.line).arg(what);
    }
    QStringList list;
};

/// Hints, answers, solutions and proofs stand alone; the steps of a proof stand in it.
void checkFolds(const Element &page, Faults &faults)
{
    for (const Element *fold : page.all(u"details"_s)) {
        const QString kind = fold->attribute(u"class"_s);
        faults(kFolds.contains(kind), *fold, u"fold of no kind: "_s + kind);
        faults(!fold->children.isEmpty() && fold->children.first()->name == u"summary" &&
                   !fold->children.first()->text.trimmed().isEmpty(),
               *fold, u"fold without a summary"_s);
        faults(fold->own(u"summary"_s).size() == 1, *fold, u"more than one summary"_s);
        QString around;
        for (const Element *p = fold->parent; p && around.isEmpty(); p = p->parent) {
            if (p->name == u"details")
                around = p->attribute(u"class"_s);
        }
        faults(around == (kind == u"paso" ? u"prueba"_s : QString()), *fold,
               u"%1 within %2"_s.arg(kind, around));
    }
}

void checkList(const Element &page, const QString &id, qsizetype least, qsizetype most,
               const QStringList &folds, Faults &faults)
{
    const Element *section = page.place(id);
    if (!section)
        return faults(false, page, u"no section "_s + id);
    qsizetype items = 0;
    for (const Element *list : section->all(u"ol"_s)) {
        // Lists within an item are its own affair.
        if (list->parent->name == u"li" || list->parent->name == u"details")
            continue;
        for (const Element *item : list->own(u"li"_s)) {
            ++items;
            for (const QString &fold : folds)
                faults(item->own(u"details"_s, fold).size() == 1, *item,
                       u"%1: item without a %2"_s.arg(id, fold));
        }
    }
    faults(items >= least && items <= most, *section, u"%1: %2 items"_s.arg(id).arg(items));
}

void checkQuestions(const Element &page, Faults &faults)
{
    const Element *section = page.place(u"recuerdas"_s);
    for (const Element *item : section ? section->all(u"li"_s) : QList<const Element *>()) {
        const QString id = item->attribute(u"id"_s);
        if (id.isEmpty() && item->attribute(u"data-respuesta"_s).isEmpty())
            continue;
        const auto links = item->all(u"a"_s);
        faults(std::any_of(links.begin(), links.end(),
                           [&](const Element *a) {
                               return a->attribute(u"href"_s) == u"numora:pregunta/"_s + id;
                           }),
               *item, u"question that no link asks: "_s + id);
        faults(!item->attribute(u"data-respuesta"_s).isEmpty(), *item,
               u"question without its answer"_s);
    }
}

void checkHead(const Element &page, Faults &faults)
{
    const auto boxes = page.all(u"table"_s, u"objetivos"_s);
    faults(boxes.size() == 1 && boxes.first()->all(u"li"_s).size() >= 3 &&
               boxes.first()->all(u"p"_s, u"antes"_s).size() == 1,
           page, u"no box of aims"_s);
    const auto links = boxes.isEmpty() ? QList<const Element *>() : boxes.first()->all(u"a"_s);
    faults(std::any_of(links.begin(), links.end(),
                       [](const Element *a) { return a->attribute(u"href"_s) == u"Curso.html"; }),
           page, u"no way to the map of the course"_s);
}

void checkContents(const Element &page, Faults &faults)
{
    QStringList sections, listed;
    for (const Element *section : page.all(u"section"_s))
        sections << section->attribute(u"id"_s);
    for (const Element *nav : page.all(u"nav"_s)) {
        for (const Element *link : nav->all(u"a"_s))
            listed << link->attribute(u"href"_s).mid(1);
    }
    faults(sections == listed, page, u"the contents do not list the sections in their order"_s);
    faults(sections.mid(sections.size() - kLastSections.size()) == kLastSections, page,
           u"the last sections are not "_s + kLastSections.join(u", "_s));
}

/// The links and folds of a section, its numbers and answers: all that a translation must keep.
QStringList outline(const Element &section)
{
    QStringList kept;
    for (const auto &child : section.children) {
        const QString href = child->attribute(u"href"_s);
        if (child->name == u"details")
            kept << u"details "_s + child->attribute(u"class"_s);
        else if (href.startsWith(u"numora:"))
            kept << href;
        for (const QString &data : {u"data-calcula"_s, u"data-pulsa"_s, u"data-respuesta"_s}) {
            QString value = child->attribute(data);
            if (!value.isEmpty())
                kept << data + u' ' + (value == u"yes" ? u"sí"_s : value.simplified());
        }
        if (child->name == u"img" && child->attribute(u"alt"_s).size() < 20)
            kept << u"a picture told in a word"_s;
        kept += outline(*child);
    }
    return kept;
}

} // namespace

QStringList foldFaults(const QString &page)
{
    Faults faults;
    checkFolds(*pageTree(page), faults);
    return faults.list;
}

QStringList courseFaults(const QString &text)
{
    const auto page = pageTree(text);
    Faults faults;
    checkHead(*page, faults);
    checkContents(*page, faults);
    checkList(*page, u"ejercicios"_s, kExercises, kExercises, {u"solucion"_s}, faults);
    checkList(*page, u"pensar"_s, 3, 20, {u"pista"_s, u"respuesta"_s}, faults);
    checkList(*page, u"recuerdas"_s, kLeastQuestions, kMostQuestions, {u"respuesta"_s}, faults);
    checkQuestions(*page, faults);
    if (const Element *exercises = page->place(u"ejercicios"_s)) {
        const auto links = exercises->all(u"a"_s);
        faults(std::count_if(links.begin(), links.end(),
                             [](const Element *a) {
                                 return a->attribute(u"href"_s).startsWith(u"numora:practicas/");
                             }) >= kPractised,
               *exercises, u"too few exercises are practised"_s);
    }
    qsizetype numbers = 0;
    for (const Element *span : page->all(u"span"_s))
        numbers += int(span->attributes.hasAttribute(u"data-calcula"_s));
    faults(numbers >= kNumbers, *page, u"too few numbers to compute again"_s);
    return faults.list;
}

QStringList parityFaults(const QString &original, const QString &translation)
{
    const auto page = pageTree(original), other = pageTree(translation);
    const auto sections = page->all(u"section"_s), others = other->all(u"section"_s);
    QStringList faults;
    for (qsizetype i = 0; i < std::max(sections.size(), others.size()); ++i) {
        const auto id = [i](const QList<const Element *> &all) {
            return i < all.size() ? all[i]->attribute(u"id"_s) : QString();
        };
        if (id(sections) != id(others))
            return {u"section #%1 where the other has #%2"_s.arg(id(sections), id(others))};
        const QStringList kept = outline(*sections[i]), theirs = outline(*others[i]);
        const auto differs = std::mismatch(kept.begin(), kept.end(), theirs.begin(), theirs.end());
        if (differs.first != kept.end() || differs.second != theirs.end())
            faults << u"section #%1: %2 where the other has %3"_s.arg(
                id(sections), differs.first == kept.end() ? u"nothing"_s : *differs.first,
                differs.second == theirs.end() ? u"nothing"_s : *differs.second);
    }
    return faults;
}

QList<NumberOfPage> numbersOf(const QString &page)
{
    static const QRegularExpression blanks(u"[\\s\\x{a0}\\x{202f}]"_s);
    QList<NumberOfPage> numbers;
    const auto tree = pageTree(page);
    for (const Element *span : tree->all(u"span"_s)) {
        const QString expression = span->attribute(u"data-calcula"_s).trimmed();
        QString shown = span->text;
        if (!expression.isEmpty())
            numbers << NumberOfPage{expression, shown.remove(blanks).replace(u'−', u'-'),
                                    span->line};
    }
    return numbers;
}
