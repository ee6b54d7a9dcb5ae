// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

class QKeyEvent;
class QListWidget;

/// A field for the expression of a cell. It takes no more than a cell may hold: what would make it
/// longer is refused as a whole, with a word. While the name of a function is being typed it offers
/// those that begin so, in a list that takes no focus.
class FormCalcCampo : public QLineEdit
{
    Q_OBJECT

public:
    explicit FormCalcCampo(QWidget *padre);

    /// A key on its way to the field, for filters to ask first: true when it was meant for the list
    /// (arrows, Tab, Enter on a row that was chosen, Escape).
    bool teclaDeLaLista(const QKeyEvent &suceso);

protected:
    void focusOutEvent(QFocusEvent *suceso) override;

private:
    void limita(const QString &texto);
    void ofrece();
    void elige();
    void ponLista();

    QString m_anterior; ///< the last text that was short enough
    QListWidget *m_lista = nullptr;
};
