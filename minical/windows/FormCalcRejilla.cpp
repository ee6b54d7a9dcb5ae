// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalcRejilla.h"

#include "minical/windows/FormCalcAspecto.h"
#include "minical/windows/FormCalcDelegado.h"

#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace {

constexpr int AnchoDeColumna = 14; ///< in characters
constexpr int MargenDeCelda = 8;   ///< in pixels, both sides

/// 350 twips, of which an inch has 1440, at 96 pixels an inch.
constexpr int AnchoDeCabecera = 350 * 96 / 1440;

} // namespace

FormCalcRejilla::FormCalcRejilla(QWidget *padre) : Rejilla(padre)
{
    setFont(letraDeHoja());
    setItemDelegate(new FormCalcDelegado(this));
    setAlternatingRowColors(false);
    setShowGrid(false);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(true);
    setVerticalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideRight);
    preparaCabeceras();
}

void FormCalcRejilla::preparaCabeceras()
{
    verticalHeader()->show();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumWidth(AnchoDeCabecera);
    for (QHeaderView *cabecera : {horizontalHeader(), verticalHeader()}) {
        cabecera->setFont(letraDeHoja());
        cabecera->setDefaultAlignment(Qt::AlignCenter);
        cabecera->setHighlightSections(true);
        // A header cannot become the current cell, and a click on it is no more than that.
        disconnect(cabecera, &QHeaderView::sectionPressed, this, nullptr);
        disconnect(cabecera, &QHeaderView::sectionEntered, this, nullptr);
        connect(cabecera, &QHeaderView::sectionClicked, this, [this, cabecera](int seccion) {
            const bool deColumnas = cabecera->orientation() == Qt::Horizontal;
            Q_EMIT clic(deColumnas ? Celda{0, seccion + 1} : Celda{seccion + 1, 0});
        });
        // Wherever the mouse is, a double click edits the current cell.
        connect(cabecera, &QHeaderView::sectionDoubleClicked, this, [this] {
            if (currentIndex().isValid())
                edit(currentIndex(), DoubleClicked, nullptr);
        });
    }
    ajustaALaLetra();
}

int FormCalcRejilla::caracter() const
{
    return std::max(1, fontMetrics().horizontalAdvance(u'0'));
}

/// Rows and columns grow with the type size; columns that were widened stay so in proportion.
void FormCalcRejilla::ajustaALaLetra()
{
    const int nuevo = caracter();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + MargenDeCelda);
    if (nuevo == m_caracter)
        return;
    const QMap<int, int> antes = m_caracter > 0 ? anchos() : QMap<int, int>();
    m_caracter = nuevo;
    ponAnchos(antes);
}

QMap<int, int> FormCalcRejilla::anchos() const
{
    QMap<int, int> cambiados;
    for (int c = 0; c < horizontalHeader()->count(); ++c) {
        const int enCaracteres = (columnWidth(c) - MargenDeCelda) / m_caracter;
        if (enCaracteres != AnchoDeColumna)
            cambiados.insert(c + 1, std::max(1, enCaracteres));
    }
    return cambiados;
}

void FormCalcRejilla::ponAnchos(const QMap<int, int> &anchos)
{
    const auto enPixeles = [this](int n) { return n * m_caracter + MargenDeCelda; };
    horizontalHeader()->setDefaultSectionSize(enPixeles(AnchoDeColumna));
    for (int c = 0; c < horizontalHeader()->count(); ++c)
        setColumnWidth(c, enPixeles(anchos.value(c + 1, AnchoDeColumna)));
}

Celda FormCalcRejilla::actual() const
{
    const QModelIndex indice = currentIndex();
    return indice.isValid() ? Celda{indice.row() + 1, indice.column() + 1} : Celda();
}

QList<Celda> FormCalcRejilla::seleccionadas() const
{
    QList<Celda> celdas;
    const auto indices = selectionModel()->selectedIndexes();
    for (const QModelIndex &indice : indices)
        celdas << Celda{indice.row() + 1, indice.column() + 1};
    if (celdas.isEmpty() && actual().esDeDatos())
        celdas << actual();
    std::sort(celdas.begin(), celdas.end());
    return celdas;
}

void FormCalcRejilla::elige(Celda desde, Celda hasta)
{
    const QModelIndex primera = model()->index(desde.fila - 1, desde.columna - 1);
    const QModelIndex ultima = model()->index(std::min(hasta.fila, Celda::Filas - 1) - 1,
                                              std::min(hasta.columna, Celda::Columnas - 1) - 1);
    setCurrentIndex(primera);
    selectionModel()->select(QItemSelection(primera, ultima), QItemSelectionModel::ClearAndSelect);
}

void FormCalcRejilla::terminaEdicion()
{
    QWidget *editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
    if (!editor)
        return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

bool FormCalcRejilla::edit(const QModelIndex &indice, EditTrigger motivo, QEvent *suceso)
{
    const bool empieza = Rejilla::edit(indice, motivo, suceso);
    auto *editor = empieza ? qobject_cast<QLineEdit *>(indexWidget(indice)) : nullptr;
    if (!editor)
        return empieza;
    // A typed character replaces what there was; any other beginning is there to correct it.
    if (motivo != AnyKeyPressed) {
        editor->deselect();
        editor->end(false);
    }
    Q_EMIT escribiendo(editor->text());
    connect(editor, &QLineEdit::textChanged, this, &FormCalcRejilla::escribiendo,
            Qt::UniqueConnection);
    return true;
}

void FormCalcRejilla::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint consejo)
{
    const int salto = FormCalcDelegado::salto(editor);
    const QScopedValueRollback<bool> guardia(m_terminando, true);
    // The cell beside it becomes current, but no edit begins there.
    Rejilla::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (consejo == QAbstractItemDelegate::EditNextItem)
        mueve(MoveNext);
    else if (consejo == QAbstractItemDelegate::EditPreviousItem)
        mueve(MovePrevious);
    else if (consejo == QAbstractItemDelegate::SubmitModelCache && salto != 0)
        mueveFilas(salto);
    Q_EMIT edicionCerrada();
}

void FormCalcRejilla::mueve(CursorAction accion)
{
    setCurrentIndex(moveCursor(accion, Qt::NoModifier));
}

void FormCalcRejilla::mueveFilas(int filas)
{
    const QModelIndex destino = currentIndex().siblingAtRow(currentIndex().row() + filas);
    if (destino.isValid())
        setCurrentIndex(destino);
}

void FormCalcRejilla::bajaTrasEdicion()
{
    const QScopedValueRollback<bool> guardia(m_terminando, true);
    mueveFilas(1);
}

void FormCalcRejilla::changeEvent(QEvent *suceso)
{
    Rejilla::changeEvent(suceso);
    if (suceso->type() == QEvent::FontChange && m_caracter > 0)
        ajustaALaLetra();
}
