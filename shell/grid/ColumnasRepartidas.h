// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QTableView;

/// Keeps every column of a grid as wide as its header and contents need, up to the width of the
/// grid, and shares the room that is left over equally among them, so that whole columns are in
/// sight whenever they fit. A grid that shortens texts in the middle has its widest columns cut
/// until all fit. Works anew when the grid is resized and when its contents change. Lives
/// as long as the grid.
class ColumnasRepartidas : public QObject
{
    Q_OBJECT

public:
    /// The grid must have its model.
    explicit ColumnasRepartidas(QTableView *rejilla);

    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void acorta(QList<int> &anchos) const;
    void reparte();

    QTableView *m_rejilla;
};
