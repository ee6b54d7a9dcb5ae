#pragma once

#include "shell/frame/FormLeccion.h"

class FormFibonacciValores;

/// The lesson on the Fibonacci numbers.
class FormFibonacci : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormFibonacci(QWidget *padre = nullptr);

protected:
    QAbstractButton *botonDeParada() const override;

private:
    FormFibonacciValores *m_valores;
};
