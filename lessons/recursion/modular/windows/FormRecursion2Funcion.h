// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/SucesionModular.h"
#include "shell/core/ModeloFilas.h"

#include <QWidget>
#include <memory>

class QLineEdit;

namespace Ui {
class FormRecursion2Funcion;
}

/// The topic "Función": the coefficients and the first two values.
class FormRecursion2Funcion : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion2Funcion(QWidget *leccion);
    ~FormRecursion2Funcion() override;

Q_SIGNALS:
    void aceptada(const DefinicionRecurrente &definicion);

private:
    void cmdFuncion_Click();
    bool lee(QLineEdit *campo, Moneda &valor);
    void muestraPrimeros(const DefinicionRecurrente &definicion);

    std::unique_ptr<Ui::FormRecursion2Funcion> ui;
    ModeloFilas m_primeros;
};
