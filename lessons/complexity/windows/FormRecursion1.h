#pragma once

#include "shell/frame/FormLeccion.h"

class FormRecursion1Fibonacci;

/// The lesson on recursion and complexity: what a recursive function costs, and why.
class FormRecursión1 : public FormLeccion
{
public:
    explicit FormRecursión1(QWidget *padre = nullptr);

protected:
    QAbstractButton *botonDeParada() const override;

private:
    FormRecursion1Fibonacci *m_fibonacci;
};
