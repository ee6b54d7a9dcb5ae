// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QTableView;

/// Keeps the cells of a grid square and of one size: as large as lets the whole table into sight,
/// between what its largest number needs and four times the height of the letters. Works anew when
/// the grid is resized and when its model is reset. Lives as long as the grid.
class FormUnidadesCasillas : public QObject
{
    Q_OBJECT

public:
    /// The grid must have its model, and both its headers in sight.
    explicit FormUnidadesCasillas(QTableView *rejilla);

    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void ajusta();
    int anchoDelMayor() const;

    QTableView *m_rejilla;
};
