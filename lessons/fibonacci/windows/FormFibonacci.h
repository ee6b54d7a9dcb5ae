// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/FormLeccion.h"

/// The lesson on the Fibonacci numbers.
class FormFibonacci : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormFibonacci(QWidget *padre = nullptr);
};
