// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// Draws the ends of a long number in a cell: measuring thousands of digits a cell would take
/// longer than the steps between two pictures. Copying takes the whole.
class FormRecursion3PintorDeNumeros : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &valor, const QLocale &) const override
    {
        constexpr int extremo = 200;
        const QString texto = valor.toString();
        return texto.size() <= 2 * extremo ? texto
                                           : texto.left(extremo) + u'…' + texto.right(extremo);
    }
};
