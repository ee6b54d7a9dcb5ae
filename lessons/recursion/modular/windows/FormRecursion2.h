// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/SucesionModular.h"
#include "shell/frame/FormLeccion.h"

class FormRecursion2Representacion;
class FormRecursion2Valores;

/// The lesson on linear recurrences modulo m: the definition, the plot and the period, the table
/// of values, and questions.
class FormRecursión2 : public FormLeccion
{
public:
    explicit FormRecursión2(QWidget *padre = nullptr);

private:
    void funcionAceptada(const DefinicionRecurrente &definicion);
    void moduloCambiado();

    FormRecursion2Representacion *m_representacion;
    FormRecursion2Valores *m_valores;
};
