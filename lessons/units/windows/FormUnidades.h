// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/FormLeccion.h"

/// The lesson on the units of Z_n: inverses, orders, Euler's function.
class FormUnidades : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormUnidades(QWidget *padre = nullptr);
};
