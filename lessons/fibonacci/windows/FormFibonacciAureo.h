// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/fibonacci/RazonAurea.h"
#include "shell/core/ModeloFilas.h"

#include <QWidget>
#include <memory>

class PanelDePasos;

namespace Ui {
class FormFibonacciAureo;
}

/// The topic "Número áureo": the quotients of neighbours, and how fast their error vanishes.
class FormFibonacciAureo : public QWidget
{
    Q_OBJECT

public:
    explicit FormFibonacciAureo(QWidget *padre);
    ~FormFibonacciAureo() override;

    PanelDePasos *pasos() const { return m_panelDePasos; }

protected:
    void resizeEvent(QResizeEvent *suceso) override;

private:
    void TxtHasta_Change();
    void cmdAureo_Click();

    void muestra();
    void representa();
    void senalaPunto(int indice);

    std::unique_ptr<Ui::FormFibonacciAureo> ui;
    PanelDePasos *m_panelDePasos;
    ModeloFilas m_modelo;
    QList<CocienteFibonacci> m_cocientes;
};
