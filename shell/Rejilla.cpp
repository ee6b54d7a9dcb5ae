#include "shell/Rejilla.h"

#include "shell/Aspecto.h"
#include "shell/ModGlobal.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLocale>
#include <QMenu>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

Rejilla::Rejilla(QWidget *padre) : QTableView(padre)
{
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
}

void Rejilla::ponTextoVacio(const QString &texto)
{
    m_textoVacio = texto;
    viewport()->update();
}

QString Rejilla::seleccion(FormaDeCopia forma) const
{
    if (!model())
        return {};
    QItemSelectionRange rango;
    if (selectionModel() && !selectionModel()->selection().isEmpty())
        rango = selectionModel()->selection().constFirst();
    const bool todo = !rango.isValid() || rango.width() * rango.height() == 1;
    if (todo) {
        rango =
            QItemSelectionRange(model()->index(0, 0), model()->index(model()->rowCount() - 1,
                                                                     model()->columnCount() - 1));
    }
    QList<QStringList> filas;
    const bool columnasEnteras = todo || rango.height() == model()->rowCount();
    if (columnasEnteras && !horizontalHeader()->isHidden()) {
        QStringList cabecera(m_rotulosDeFila ? 1 : 0);
        for (int c = rango.left(); c <= rango.right(); ++c)
            cabecera << model()->headerData(c, Qt::Horizontal).toString();
        filas << cabecera;
    }
    for (int f = rango.top(); f <= rango.bottom(); ++f) {
        QStringList fila;
        if (m_rotulosDeFila)
            fila << model()->headerData(f, Qt::Vertical).toString();
        for (int c = rango.left(); c <= rango.right(); ++c)
            fila << model()->index(f, c).data().toString();
        filas << fila;
    }
    // Of a grid to write in, the empty rows at its end are no contents.
    while (todo && filas.size() > 1 && filas.constLast().join(QString()).isEmpty())
        filas.removeLast();
    return textoDeRejilla(filas, forma, QLocale().decimalPoint() == u","_s);
}

void Rejilla::copia(FormaDeCopia forma) const
{
    QApplication::clipboard()->setText(seleccion(forma));
}

void Rejilla::keyPressEvent(QKeyEvent *suceso)
{
    if (!suceso->matches(QKeySequence::Copy)) {
        QTableView::keyPressEvent(suceso);
        return;
    }
    const auto elegidas =
        selectionModel() ? selectionModel()->selectedIndexes() : QModelIndexList();
    if (elegidas.size() == 1)
        QApplication::clipboard()->setText(elegidas.constFirst().data().toString());
    else
        copia(FormaDeCopia::Texto);
}

void Rejilla::contextMenuEvent(QContextMenuEvent *suceso)
{
    QMenu menu(this);
    menu.addAction(Traduce(u"&Copiar"_s), this, [this] { copia(FormaDeCopia::Texto); });
    menu.addAction(Traduce(u"Copiar como C&SV"_s), this, [this] { copia(FormaDeCopia::CSV); });
    menu.addAction(Traduce(u"Copiar como &TeX"_s), this, [this] { copia(FormaDeCopia::TeX); });
    menu.addSeparator();
    menu.addAction(Traduce(u"Seleccionar &todo"_s), this, &QTableView::selectAll);
    menu.setEnabled(model() && model()->rowCount() > 0);
    menu.exec(suceso->globalPos());
}

void Rejilla::paintEvent(QPaintEvent *suceso)
{
    QTableView::paintEvent(suceso);
    if (m_textoVacio.isEmpty() || (model() && model()->rowCount() > 0))
        return;
    QPainter pintor(viewport());
    pintor.setPen(Aspecto::atenuado());
    pintor.drawText(viewport()->rect().adjusted(Aspecto::Margen, 0, -Aspecto::Margen, 0),
                    Qt::AlignCenter | Qt::TextWordWrap, m_textoVacio);
}
