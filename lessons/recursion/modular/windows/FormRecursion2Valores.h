// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/ModeloValores.h"

#include <QWidget>
#include <memory>

namespace Ui {
class FormRecursion2Valores;
}

/// The topic "Valores": the table of the 250 values, copied by a click.
class FormRecursion2Valores : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion2Valores(QWidget *leccion);
    ~FormRecursion2Valores() override;

    void pon(const DefinicionRecurrente &definicion,
             const std::optional<SucesionModular> &sucesion);

private:
    void FlexValores_Click(const QModelIndex &celda);

    std::unique_ptr<Ui::FormRecursion2Valores> ui;
    ModeloValores m_valores;
};
