// SPDX-License-Identifier: GPL-3.0-or-later
// The grid of the sheet: where keys and mouse lead.

#include "minical/windows/FormCalcRecorrido.h"
#include "minical/windows/FormCalcRejilla.h"

#include <QContextMenuEvent>
#include <QHash>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <algorithm>

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

/// Tab goes from cell to cell, as in every spreadsheet; behind Escape it leaves them.
QKeySequence FormCalcRejilla::teclaDeSalida() const
{
    return {Qt::Key_Escape, Qt::Key_Tab};
}

void FormCalcRejilla::focusInEvent(QFocusEvent *suceso)
{
    setTabKeyNavigation(true);
    Rejilla::focusInEvent(suceso);
}

void FormCalcRejilla::keyPressEvent(QKeyEvent *suceso)
{
    const int tecla = suceso->key();
    if (tecla != Qt::Key_Shift)
        setTabKeyNavigation(tecla != Qt::Key_Escape || state() == EditingState);
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
        m_extiendeConRaton = true;
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

void FormCalcRejilla::mouseMoveEvent(QMouseEvent *suceso)
{
    if (!m_extiendeConRaton) {
        Rejilla::mouseMoveEvent(suceso);
        return;
    }
    const QModelIndex indice = indexAt(suceso->position().toPoint());
    if (indice.isValid() && indice != currentIndex())
        extiendeHasta(indice);
}

void FormCalcRejilla::mouseReleaseEvent(QMouseEvent *suceso)
{
    m_extiendeConRaton = false;
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
