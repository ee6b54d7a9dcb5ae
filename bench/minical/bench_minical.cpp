// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "minical/ArchivoDeHoja.h"
#include "minical/HojaDeCalculo.h"
#include "minical/windows/FormCalc.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTextStream>
#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array Sizes{100, 500, 2475};
constexpr int Rounds = 5;

/// The first so many cells of a chain, column by column. In each column rows 10 to 99 come before 1
/// to 9, because a name is replaced within a longer one unless the longer one has come first.
QList<Celda> chain(int cells)
{
    QList<Celda> list;
    for (int column = 1; column < Celda::Columnas; ++column) {
        for (int row = 10; row < Celda::Filas; ++row)
            list << Celda{row, column};
        for (int row = 1; row < 10; ++row)
            list << Celda{row, column};
    }
    return list.first(cells);
}

QString expression(const QList<Celda> &cells, qsizetype i)
{
    return i == 0 ? u"1"_s : NombreCelda(cells[i - 1]) + u"+1"_s;
}

/// The least microseconds a cell of several rounds: a shared machine is now and then busy.
double microsecondsPerCell(qsizetype cells, const std::function<void()> &before,
                           const std::function<void()> &action)
{
    double best = std::numeric_limits<double>::max();
    for (int round = 0; round < Rounds; ++round) {
        before();
        const auto start = std::chrono::steady_clock::now();
        action();
        const std::chrono::duration<double, std::micro> time =
            std::chrono::steady_clock::now() - start;
        best = std::min(best, time.count());
    }
    return best / static_cast<double>(cells);
}

void require(bool holds, const char *what)
{
    if (!holds)
        qFatal("the sheet is wrong: %s", what);
}

void fill(HojaDeCalculo &sheet, const QList<Celda> &cells)
{
    for (qsizetype i = 0; i < cells.size(); ++i)
        sheet.finDeEdicion(cells[i], expression(cells, i));
}

bool isRight(const HojaDeCalculo &sheet, const QList<Celda> &cells)
{
    return sheet.texto(cells.constLast()) == QString::number(cells.size());
}

double filling(const QList<Celda> &cells)
{
    HojaDeCalculo sheet;
    const double time = microsecondsPerCell(
        cells.size(), [&] { sheet = HojaDeCalculo(); }, [&] { fill(sheet, cells); });
    require(isRight(sheet, cells), "filling");
    return time;
}

double recalculating(const QList<Celda> &cells)
{
    HojaDeCalculo sheet;
    fill(sheet, cells);
    const double time = microsecondsPerCell(
        cells.size(), [] {},
        [&] {
            for (const Celda cell : cells)
                sheet.Recalcular(cell);
        });
    require(isRight(sheet, cells), "recalculating");
    return time;
}

/// What the evaluations alone cost, of texts in which the names are already replaced.
double evaluating(const QList<Celda> &cells)
{
    QStringList texts;
    for (qsizetype i = 0; i < cells.size(); ++i)
        texts << u"(%1)+1"_s.arg(i);
    QString last;
    const double time = microsecondsPerCell(
        cells.size(), [] {},
        [&] {
            for (const QString &text : std::as_const(texts))
                last = Evalua(QString(text));
        });
    require(last == QString::number(cells.size()), "evaluating");
    return time;
}

/// The same edits through the grid of the window, which paints after each.
double fillingTheWindow(const QList<Celda> &cells)
{
    std::unique_ptr<FormCalc> window;
    QTableView *grid = nullptr;
    const auto open = [&] {
        window = std::make_unique<FormCalc>();
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->resize(1200, 700);
        window->show();
        grid = window->findChild<QTableView *>(u"FlexCalc"_s);
        QCoreApplication::processEvents();
    };
    const double time = microsecondsPerCell(cells.size(), open, [&] {
        for (qsizetype i = 0; i < cells.size(); ++i) {
            const QModelIndex index = grid->model()->index(cells[i].fila - 1, cells[i].columna - 1);
            grid->setCurrentIndex(index);
            grid->model()->setData(index, expression(cells, i));
            QCoreApplication::processEvents();
        }
    });
    require(grid->currentIndex().data() == QString::number(cells.size()), "the window");
    return time;
}

double savingAndOpening(const QList<Celda> &cells)
{
    HojaDeCalculo sheet;
    fill(sheet, cells);
    HojaDeCalculo other;
    const double time = microsecondsPerCell(
        cells.size(), [] {},
        [&] { other.carga(std::get<HojaGuardada>(leeHoja(escribeHoja(contenidoDe(sheet))))); });
    require(isRight(other, cells), "saving and opening");
    return time;
}

/// Milliseconds of a click on a cell of so many digits while the zoom is on.
double clickOnZoomedCell(int digits)
{
    FormCalc window;
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.resize(1200, 700);
    window.show();
    auto *grid = window.findChild<QTableView *>(u"FlexCalc"_s);
    grid->model()->setData(grid->model()->index(0, 0), u"10^%1/3-1/3"_s.arg(digits - 1));
    window.findChild<QAbstractButton *>(u"Zoom"_s)->click();
    const auto click = [&](int row) {
        const QPoint place = grid->visualRect(grid->model()->index(row, 0)).center();
        QMouseEvent press(QEvent::MouseButtonPress, place, grid->viewport()->mapToGlobal(place),
                          Qt::LeftButton, Qt::LeftButton, {});
        QMouseEvent release(QEvent::MouseButtonRelease, place, grid->viewport()->mapToGlobal(place),
                            Qt::LeftButton, {}, {});
        QCoreApplication::sendEvent(grid->viewport(), &press);
        QCoreApplication::sendEvent(grid->viewport(), &release);
        QCoreApplication::processEvents();
    };
    const double micros = microsecondsPerCell(
        1, [&] { click(1); }, [&] { click(0); });
    const auto *text = window.findChild<QPlainTextEdit *>(u"txtZoom"_s);
    require(text->toPlainText().size() >= digits - 1, "the zoom");
    return micros / 1000;
}

void row(const QString &what, const std::function<double(const QList<Celda> &)> &measure)
{
    QTextStream out(stdout);
    out << what.leftJustified(30);
    double first = 0;
    for (const int size : Sizes) {
        const double time = measure(chain(size));
        if (first == 0)
            first = time;
        out << u"%1 µs (%2)"_s.arg(time, 9, 'f', 2).arg(time / first, 0, 'f', 2).leftJustified(24);
    }
    out << Qt::endl;
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    IniciaBignum(100);
    QTextStream(stdout)
        << u"Microseconds a cell, and beside 100 cells, for 100, 500, 2475 cells\n"_s << Qt::flush;
    row(u"evaluations alone"_s, evaluating);
    row(u"filled"_s, filling);
    row(u"recalculated"_s, recalculating);
    row(u"saved and opened"_s, savingAndOpening);
    row(u"filled in the window, painted"_s, fillingTheWindow);
    for (const int digits : {6000, 12'000, 24'000})
        QTextStream(stdout) << u"click on a zoomed cell of %1 digits: %2 ms\n"_s.arg(digits).arg(
            clickOnZoomedCell(digits), 0, 'f', 1);
    return 0;
}
