// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/ModeloValores.h"
#include "shell/look/Aspecto.h"

#include <QStyledItemDelegate>

/// Gives the rows that are marked another ground, and bold figures.
class FormRecursion2PintorDeMarcas : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *opcion, const QModelIndex &indice) const override
    {
        QStyledItemDelegate::initStyleOption(opcion, indice);
        if (!indice.data(ModeloValores::PapelDeMarca).toBool())
            return;
        QColor fondo = Aspecto::acento();
        fondo.setAlphaF(0.22F);
        opcion->backgroundBrush = fondo;
        opcion->font.setBold(true);
    }
};
