// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/complexity/TorresHanoi.h"
#include "shell/core/ModeloFilas.h"

#include <QTimer>
#include <QWidget>
#include <memory>

class PanelDePasos;

namespace Ui {
class FormRecursion1Hanoi;
}

/// The topic "Torres de Hanói": the discs are moved by the student, or by the program in the fewest
/// moves from where they stand.
class FormRecursion1Hanoi : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion1Hanoi(QWidget *padre);
    ~FormRecursion1Hanoi() override;

    PanelDePasos *pasos() const { return m_pasos; }

private:
    void cmdMover_Click();
    void cmdSiguienteMovimiento_Click();
    void cmdAnterior_Click();
    void cmdEmpezar_Click();
    void sldVelocidad_Change(int velocidad);
    void TimerHanoi_Timer();
    void PicHanoi_PaloElegido(int palo);

    void para();
    void intenta(int desde, int hasta);
    void muestra();
    void muestraMovimientos();
    QString ultimoMovimiento() const;

    std::unique_ptr<Ui::FormRecursion1Hanoi> ui;
    TorresHanoi m_torres{1};
    ModeloFilas m_modelo;
    PanelDePasos *m_pasos;
    QTimer m_timerHanoi{this};
};
