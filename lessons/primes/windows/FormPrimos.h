// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/FormLeccion.h"

/// The lesson on primes.
class FormPrimos : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormPrimos(QWidget *padre = nullptr);

private:
    QWidget *conExperimento(QWidget *factorizacion);
};
