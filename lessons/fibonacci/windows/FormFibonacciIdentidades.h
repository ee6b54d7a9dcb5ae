// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/fibonacci/IdentidadesFibonacci.h"
#include "shell/core/ModeloFilas.h"

#include <QWidget>
#include <memory>
#include <optional>

class PanelDePasos;
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

    PanelDePasos *pasos() const { return m_panelDePasos; }

private:
    void TxtIndice_Change();
    void cmdProbar_Click();
    void FlexIdentidades_RowColChange(int fila);

    std::optional<int> lee(QLineEdit *campo);
    void muestra(const QList<IdentidadProbada> &identidades);

    std::unique_ptr<Ui::FormFibonacciIdentidades> ui;
    PanelDePasos *m_panelDePasos;
    ModeloFilas m_modelo;
    QList<IdentidadProbada> m_identidades;
    std::pair<int, int> m_probados; ///< m and n of them
};
