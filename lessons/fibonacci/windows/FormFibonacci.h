#pragma once

#include "shell/frame/FormLeccion.h"

/// The lesson on the Fibonacci numbers.
class FormFibonacci : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormFibonacci(QWidget *padre = nullptr);
};
