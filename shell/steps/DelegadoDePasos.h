// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/steps/PasoCompuesto.h"

#include <QCache>
#include <QStyledItemDelegate>

/// Paints the steps of a list, each as high as it is when it is set to the width of the list. What
/// has been set is kept while it is near.
class DelegadoDePasos : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit DelegadoDePasos(QObject *padre = nullptr);

    /// Other steps, or another type size: nothing that was set holds any more.
    void olvida();

    void paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
               const QModelIndex &indice) const override;
    QSize sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &indice) const override;

private:
    const PasoCompuesto &compuesto(const QStyleOptionViewItem &opcion,
                                   const QModelIndex &indice) const;

    mutable QCache<int, PasoCompuesto> m_compuestos;
    mutable int m_ancho = 0;
};
