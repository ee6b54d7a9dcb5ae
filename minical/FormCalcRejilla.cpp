#include "minical/FormCalcRejilla.h"

#include "minical/FormCalcDelegado.h"
#include "minical/FormCalcLetra.h"
#include "minical/FormCalcRecorrido.h"

#include <QContextMenuEvent>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
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

QModelIndex FormCalcRejilla::moveCursor(CursorAction accion, Qt::KeyboardModifiers teclas)
{
    const QModelIndex actual = currentIndex();
    if (!(teclas & Qt::ControlModifier) || !actual.isValid())
        return Rejilla::moveCursor(accion, teclas);
    switch (accion) {
    case MoveHome:
        return model()->index(0, 0);
    case MoveEnd:
        return ultimaEnUso(*model());
    case MoveUp:
        return finDeBloque(actual, -1, 0);
    case MoveDown:
        return finDeBloque(actual, 1, 0);
    case MoveLeft:
        return finDeBloque(actual, 0, -1);
    case MoveRight:
        return finDeBloque(actual, 0, 1);
    default:
        return Rejilla::moveCursor(accion, teclas);
    }
}

/// Extends the selection by a key with Shift; false for other keys. The view itself extends it from
/// where the mouse was pressed last, wherever the end of an edit has led meanwhile.
bool FormCalcRejilla::extiende(const QKeyEvent &suceso)
{
    static const QHash<int, CursorAction> acciones{
        {Qt::Key_Up, MoveUp},         {Qt::Key_Down, MoveDown},        {Qt::Key_Left, MoveLeft},
        {Qt::Key_Right, MoveRight},   {Qt::Key_Home, MoveHome},        {Qt::Key_End, MoveEnd},
        {Qt::Key_PageUp, MovePageUp}, {Qt::Key_PageDown, MovePageDown}};
    const auto accion = acciones.constFind(suceso.key());
    if (!(suceso.modifiers() & Qt::ShiftModifier) || accion == acciones.cend() ||
        !currentIndex().isValid())
        return false;
    extiendeHasta(moveCursor(*accion, suceso.modifiers() & ~Qt::ShiftModifier));
    return true;
}

void FormCalcRejilla::extiendeHasta(const QModelIndex &indice)
{
    const QScopedValueRollback<bool> guardia(m_extendiendo, true);
    // A click on the current cell drops a selection without making another cell current.
    if (selectionModel()->selectedIndexes().size() <= 1)
        m_ancla = currentIndex();
    const auto [arriba, abajo] = std::minmax({m_ancla.row(), indice.row()});
    const auto [izquierda, derecha] = std::minmax({m_ancla.column(), indice.column()});
    selectionModel()->setCurrentIndex(indice, QItemSelectionModel::NoUpdate);
    selectionModel()->select(
        QItemSelection(model()->index(arriba, izquierda), model()->index(abajo, derecha)),
        QItemSelectionModel::ClearAndSelect);
}

void FormCalcRejilla::currentChanged(const QModelIndex &actual, const QModelIndex &anterior)
{
    Rejilla::currentChanged(actual, anterior);
    if (!m_extendiendo && state() != DragSelectingState)
        m_ancla = actual;
    if (!m_terminando)
        Q_EMIT movida();
}

void FormCalcRejilla::keyPressEvent(QKeyEvent *suceso)
{
    const int tecla = suceso->key();
    const bool intro = tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
    // The field of an edit lets Enter through; its end comes from the event queue.
    if (intro && state() == EditingState)
        return;
    const bool escribe = tecla == Qt::Key_F2 || !suceso->text().trimmed().isEmpty();
    // A new sheet has no current cell yet: the first key goes to A1.
    if (!currentIndex().isValid() && model() && (intro || escribe))
        setCurrentIndex(model()->index(0, 0));
    else if (intro)
        mueveFilas(suceso->modifiers() & Qt::ShiftModifier ? -1 : 1);
    if (intro)
        return;
    if (extiende(*suceso))
        return;
    if (tecla == Qt::Key_Delete || tecla == Qt::Key_Backspace)
        Q_EMIT borrar();
    else if (suceso->matches(QKeySequence::Paste))
        Q_EMIT pegar();
    else
        Rejilla::keyPressEvent(suceso);
}

void FormCalcRejilla::mousePressEvent(QMouseEvent *suceso)
{
    const QModelIndex indice = indexAt(suceso->position().toPoint());
    const bool izquierdo = suceso->button() == Qt::LeftButton;
    if (izquierdo && indice.isValid() && currentIndex().isValid() &&
        suceso->modifiers() == Qt::ShiftModifier) {
        extiendeHasta(indice);
        return;
    }
    if (izquierdo || !indice.isValid()) {
        Rejilla::mousePressEvent(suceso);
        return;
    }
    setCurrentIndex(indice);
    if (suceso->button() == Qt::RightButton)
        edit(indice, AllEditTriggers, suceso);
}

void FormCalcRejilla::mouseReleaseEvent(QMouseEvent *suceso)
{
    Rejilla::mouseReleaseEvent(suceso);
    const QModelIndex indice = indexAt(suceso->position().toPoint());
    if (indice.isValid())
        Q_EMIT clic({indice.row() + 1, indice.column() + 1});
}

void FormCalcRejilla::contextMenuEvent(QContextMenuEvent *suceso)
{
    // The right button edits; the menu is reached by its key.
    if (suceso->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuPedido(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

void FormCalcRejilla::changeEvent(QEvent *suceso)
{
    Rejilla::changeEvent(suceso);
    if (suceso->type() == QEvent::FontChange && m_caracter > 0)
        ajustaALaLetra();
}
