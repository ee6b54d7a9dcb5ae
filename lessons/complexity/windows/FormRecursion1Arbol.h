// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/complexity/ArbolDeLlamadas.h"

#include <QWidget>
#include <memory>

class PanelDePasos;

namespace Ui {
class FormRecursion1Arbol;
}

/// The topic "Árbol de llamadas": the calls of the recursive F(n), in the order in which they are
/// made.
class FormRecursion1Arbol : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion1Arbol(QWidget *padre);
    ~FormRecursion1Arbol() override;

    PanelDePasos *pasos() const { return m_pasos; }

private:
    void SpinN_Change();
    void sldLlamadas_Change(int hechas);
    void cmdSiguienteLlamada_Click();

    std::unique_ptr<Ui::FormRecursion1Arbol> ui;
    PanelDePasos *m_pasos;
    ArbolDeLlamadas m_arbol{1, false};
};
