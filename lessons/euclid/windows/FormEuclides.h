// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/FormLeccion.h"

class FormEuclidesTabla;

/// The lesson on Euclid's algorithm and on linear equations in whole numbers.
class FormEuclides : public FormLeccion
{
    Q_OBJECT
    Q_PROPERTY(bool RestosReducidos READ RestosReducidos WRITE ponRestosReducidos)

public:
    explicit FormEuclides(QWidget *padre = nullptr);

    /// Whether the next edit of the two numbers divides with remainders of least absolute value;
    /// false at first.
    bool RestosReducidos() const;
    void ponRestosReducidos(bool reducidos);

private:
    FormEuclidesTabla *m_tabla;
};
