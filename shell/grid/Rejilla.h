// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/CopiaDeCeldas.h"
#include "shell/frame/Evento.h"

#include <QItemSelection>
#include <QKeySequence>
#include <QTableView>

class AvanceDeCopia;

/// The grid of every lesson: a table view whose cells can be copied by Ctrl+C and from its context
/// menu, as text, CSV or TeX, with headers when whole columns are taken; with a hint in the middle
/// while it is empty. A long copy is a run, which shows how far it is and can be stopped.
class Rejilla : public QTableView
{
    Q_OBJECT

public:
    explicit Rejilla(QWidget *padre = nullptr);

    /// What is shown in the middle of the grid while it has no rows.
    void ponTextoVacio(const QString &texto);

    /// Whether copies bear the labels of the rows in front; not so at first.
    void ponRotulosDeFilaEnCopia(bool con) { m_rotulosDeFila = con; }

    /// The selected cells (all when none or one is selected), in their form; empty without rows.
    Tarea<Copia> seleccion(
        FormaDeCopia forma, AvanceDeFilas avance = [](int) {}, Billete billete = {});

    /// The keys by which the keyboard leaves a grid in which Tab goes from cell to cell; none where
    /// Tab leaves it.
    virtual QKeySequence teclaDeSalida() const { return {}; }

    Tareas &tareas() { return m_tareas; }

protected:
    /// While cells are being edited Tab goes to the next one, and out of the grid from the last.
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint consejo) override;
    void keyPressEvent(QKeyEvent *suceso) override;
    void contextMenuEvent(QContextMenuEvent *suceso) override;
    void paintEvent(QPaintEvent *suceso) override;

private:
    QItemSelectionRange elegido() const;
    CeldasPorCopiar elegidas() const;
    Tarea<> copia(FormaDeCopia forma);

    QString m_textoVacio;
    AvanceDeCopia *m_avance = nullptr; ///< made by the first copy
    bool m_rotulosDeFila = false;
    TareasDeVentana m_tareas{this};
};
