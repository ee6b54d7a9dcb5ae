// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/Celda.h"
#include "shell/grid/Rejilla.h"

#include <QPersistentModelIndex>

/// The grid of the sheet: keys and mouse as in every spreadsheet, with the headers for row 0 and
/// column 0.
class FormCalcRejilla : public Rejilla
{
    Q_OBJECT

public:
    explicit FormCalcRejilla(QWidget *padre = nullptr);

    /// The current cell; the header cell while there is none.
    Celda actual() const;
    /// Every selected cell, row by row; the current one when none is.
    QList<Celda> seleccionadas() const;

    /// Selects the data cells from one to the other, and makes the first one current.
    void elige(Celda desde, Celda hasta);

    /// Takes what is being typed into the cell, as Enter would.
    void terminaEdicion();

    /// Goes one row down, as an edit does that ends by Enter.
    void bajaTrasEdicion();

    /// Widths of the columns that the user has changed, in characters, by column; and back.
    QMap<int, int> anchos() const;
    void ponAnchos(const QMap<int, int> &anchos);

    QKeySequence teclaDeSalida() const override;

Q_SIGNALS:
    /// A button of the mouse was released over a cell or a header.
    void clic(Celda celda);
    /// The current cell is another, by keys or mouse, and not because an edit has ended.
    void movida();
    /// A text is being typed into the current cell.
    void escribiendo(const QString &texto);
    /// The field of an edit is closed, whether its text was taken or not.
    void edicionCerrada();
    /// The selected cells are to be emptied.
    void borrar();
    /// A text is to be entered from the current cell on.
    void pegar();
    /// The context menu was asked for by its key.
    void menuPedido(const QPoint &donde);

protected:
    bool edit(const QModelIndex &indice, EditTrigger motivo, QEvent *suceso) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint consejo) override;
    /// With the Ctrl key: Home and End go to the first and the last cell in use, the arrows to the
    /// end of a block of cells in use or to the next one.
    QModelIndex moveCursor(CursorAction accion, Qt::KeyboardModifiers teclas) override;
    void currentChanged(const QModelIndex &actual, const QModelIndex &anterior) override;
    void keyPressEvent(QKeyEvent *suceso) override;
    void focusInEvent(QFocusEvent *suceso) override;
    void mousePressEvent(QMouseEvent *suceso) override;
    void mouseMoveEvent(QMouseEvent *suceso) override;
    void mouseReleaseEvent(QMouseEvent *suceso) override;
    void contextMenuEvent(QContextMenuEvent *suceso) override;
    void changeEvent(QEvent *suceso) override;

private:
    void preparaCabeceras();
    void ajustaALaLetra();
    int caracter() const;
    void mueve(CursorAction accion);
    void mueveFilas(int filas);
    bool extiende(const QKeyEvent &suceso);
    void extiendeHasta(const QModelIndex &indice);

    int m_caracter = 0; ///< width of a character, in pixels, that the columns were made for
    bool m_terminando = false;
    /// Where the selection begins that Shift extends.
    QPersistentModelIndex m_ancla;
    bool m_extendiendo = false;
    bool m_extiendeConRaton = false;
};
