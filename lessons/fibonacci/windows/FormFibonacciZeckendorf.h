// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/fibonacci/Zeckendorf.h"
#include "shell/core/ModeloFilas.h"

#include <QWidget>
#include <memory>

class PanelDePasos;

namespace Ui {
class FormFibonacciZeckendorf;
}

/// The topic "Zeckendorf": the representation of a number, step by step.
class FormFibonacciZeckendorf : public QWidget
{
    Q_OBJECT

public:
    explicit FormFibonacciZeckendorf(QWidget *padre);
    ~FormFibonacciZeckendorf() override;

    PanelDePasos *pasos() const { return m_panelDePasos; }

private:
    void cmdSiguiente_Click();
    void cmdTodo_Click();
    void cmdEmpezar_Click();

    bool hayNumero();
    void avanzaHasta(qsizetype pasos);
    void muestraSuma();
    /// What is said of a representation that is complete.
    QString resumen() const;

    std::unique_ptr<Ui::FormFibonacciZeckendorf> ui;
    PanelDePasos *m_panelDePasos;
    ModeloFilas m_modelo;
    QString m_numero;
    QList<PasoZeckendorf> m_pasos;
    qsizetype m_dados = 0;
};
