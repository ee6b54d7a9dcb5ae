// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/ModeloValores.h"

#include <QWidget>
#include <memory>

class PanelDePasos;

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

    PanelDePasos *pasos() const { return m_pasos; }

    void pon(const DefinicionRecurrente &definicion,
             const std::optional<SucesionModular> &sucesion);

private:
    QString textoDePareja(const std::optional<SucesionModular> &sucesion) const;

    void FlexValores_Click(const QModelIndex &celda);

    std::unique_ptr<Ui::FormRecursion2Valores> ui;
    ModeloValores m_valores;
    PanelDePasos *m_pasos;
};
