// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/fibonacci/IdentidadesFibonacci.h"
#include "shell/core/ModeloFilas.h"

#include <QWidget>
#include <memory>
#include <optional>

class QLineEdit;

namespace Ui {
class FormFibonacciIdentidades;
}

/// The topic "Identidades": identities tried on the student's numbers.
class FormFibonacciIdentidades : public QWidget
{
    Q_OBJECT

public:
    explicit FormFibonacciIdentidades(QWidget *padre);
    ~FormFibonacciIdentidades() override;

private:
    void TxtIndice_Change();
    void cmdProbar_Click();
    void FlexIdentidades_RowColChange(int fila);

    std::optional<int> lee(QLineEdit *campo);
    void muestra(const QList<IdentidadProbada> &identidades);

    std::unique_ptr<Ui::FormFibonacciIdentidades> ui;
    ModeloFilas m_modelo;
    QList<IdentidadProbada> m_identidades;
};
