// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/FormLeccion.h"

/// The lesson on the Chinese remainder theorem.
class FormTCR : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormTCR(QWidget *padre = nullptr);
};
