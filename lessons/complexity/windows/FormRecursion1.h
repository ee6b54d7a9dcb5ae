// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/FormLeccion.h"

/// The lesson on recursion and complexity: what a recursive function costs, and why.
class FormRecursión1 : public FormLeccion
{
public:
    explicit FormRecursión1(QWidget *padre = nullptr);
};
