// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/complexity/TorresHanoi.h"
#include "shell/core/ModeloFilas.h"

#include <QTimer>
#include <QWidget>
#include <memory>

namespace Ui {
class FormRecursion1Hanoi;
}

/// The topic "Torres de Hanói": the fewest moves, shown one after the other.
class FormRecursion1Hanoi : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion1Hanoi(QWidget *padre);
    ~FormRecursion1Hanoi() override;

private:
    void cmdMover_Click();
    void cmdSiguienteMovimiento_Click();
    void cmdAnterior_Click();
    void cmdEmpezar_Click();
    void sldVelocidad_Change(int velocidad);
    void TimerHanoi_Timer();

    void para();
    void muestra();

    std::unique_ptr<Ui::FormRecursion1Hanoi> ui;
    TorresHanoi m_torres{1};
    ModeloFilas m_modelo;
    QTimer m_timerHanoi{this};
};
