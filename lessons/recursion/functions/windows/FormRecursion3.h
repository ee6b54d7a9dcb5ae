// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/FormLeccion.h"

/// The lesson on classical recursive functions: Ackermann's, the hailstone sequence, and the search
/// for palindromes, on the tabs of `SSTab1`. The three share one stop flag.
class FormRecursión3 : public FormLeccion
{
public:
    explicit FormRecursión3(QWidget *padre = nullptr);
};
