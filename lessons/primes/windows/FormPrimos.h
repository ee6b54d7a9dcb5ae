#pragma once

#include "shell/frame/FormLeccion.h"

/// The lesson on primes.
class FormPrimos : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormPrimos(QWidget *padre = nullptr);
};
