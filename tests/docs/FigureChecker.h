#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

/// What is wrong with one SVG figure of the introduction pages.
struct FigureReport
{
    QStringList faults; ///< Empty when the figure is fit; each fault names its line.
    QSize size;         ///< The picture's own size in pixels, invalid where it states none.
};

/// Reads the figure in `path` and checks that it is well-formed, titled, sized, and drawn with
/// nothing that the program's own SVG renderer would leave out.
FigureReport checkFigure(const QString &path);

/// What the figure in `path` draws besides its words: its elements in order, each with its
/// attributes. Of texts only their place in that order, since other words may need another size or
/// position.
QStringList drawingOf(const QString &path);
