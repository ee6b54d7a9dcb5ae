// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/euclid/CuestionEuclides.h"
#include "shell/core/ModeloFilas.h"

#include <QWidget>
#include <memory>

namespace Ui {
class FormEuclidesCuestiones;
}

/// The topic "Cuestiones": find two numbers for which the algorithm makes exactly n divisions.
class FormEuclidesCuestiones : public QWidget
{
    Q_OBJECT

public:
    explicit FormEuclidesCuestiones(QWidget *leccion);
    ~FormEuclidesCuestiones() override;

private:
    void campo_Change();
    void cmdProblema_Click();

    std::unique_ptr<Ui::FormEuclidesCuestiones> ui;
    CuestionEuclides m_cuestion;
    ModeloFilas m_intentos;
};
