#include "shell/grid/Rejilla.h"

#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"

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
    if (!model() || model()->rowCount() == 0)
        return {};
    QItemSelectionRange rango = elegido();
    const bool todo = !rango.isValid() || (rango.width() == 1 && rango.height() == 1);
    if (todo)
        rango = contenido();
    EscritorDeRejilla escritor(forma, rango.width() + (m_rotulosDeFila ? 1 : 0),
                               QLocale().decimalPoint() == u","_s);
    const bool columnasEnteras = todo || rango.height() == model()->rowCount();
    if (columnasEnteras && !horizontalHeader()->isHidden())
        escritor.agrega(cabecera(rango));
    for (int f = rango.top(); f <= rango.bottom(); ++f)
        escritor.agrega(fila(f, rango));
    return escritor.termina();
}

/// The selected cells; not valid when there are none.
QItemSelectionRange Rejilla::elegido() const
{
    return selectionModel() ? selectionModel()->selection().value(0) : QItemSelectionRange();
}

/// All cells; of a grid to write in, the empty rows at its end are no contents.
QItemSelectionRange Rejilla::contenido() const
{
    const auto hasta = [this](int ultima) {
        return QItemSelectionRange(model()->index(0, 0),
                                   model()->index(ultima, model()->columnCount() - 1));
    };
    int ultima = model()->rowCount() - 1;
    while (ultima > 0 && fila(ultima, hasta(ultima)).join(QString()).isEmpty())
        --ultima;
    return hasta(ultima);
}

QStringList Rejilla::cabecera(const QItemSelectionRange &rango) const
{
    QStringList celdas(m_rotulosDeFila ? 1 : 0);
    for (int c = rango.left(); c <= rango.right(); ++c)
        celdas << model()->headerData(c, Qt::Horizontal).toString();
    return celdas;
}

QStringList Rejilla::fila(int numero, const QItemSelectionRange &rango) const
{
    QStringList celdas;
    if (m_rotulosDeFila)
        celdas << model()->headerData(numero, Qt::Vertical).toString();
    for (int c = rango.left(); c <= rango.right(); ++c)
        celdas << model()->index(numero, c).data().toString();
    return celdas;
}

void Rejilla::copia(FormaDeCopia forma) const
{
    const QString texto = seleccion(forma);
    if (!texto.isEmpty())
        QApplication::clipboard()->setText(texto);
}

void Rejilla::keyPressEvent(QKeyEvent *suceso)
{
    if (!suceso->matches(QKeySequence::Copy)) {
        QTableView::keyPressEvent(suceso);
        return;
    }
    const QItemSelectionRange rango = elegido();
    if (rango.isValid() && rango.width() == 1 && rango.height() == 1)
        QApplication::clipboard()->setText(rango.topLeft().data().toString());
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
