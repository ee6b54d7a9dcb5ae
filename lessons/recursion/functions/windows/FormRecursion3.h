#pragma once

#include "shell/frame/FormLeccion.h"

class FormRecursion3Ackermann;
class FormRecursion3Capicuas;
class FormRecursion3Hailstone;
class QTabWidget;

/// The lesson on classical recursive functions: Ackermann's, the hailstone sequence, and the search
/// for palindromes, on the tabs of `SSTab1`. The three share one stop flag.
class FormRecursión3 : public FormLeccion
{
public:
    explicit FormRecursión3(QWidget *padre = nullptr);

protected:
    QAbstractButton *botonDeParada() const override;

private:
    QTabWidget *m_pestanas;
    FormRecursion3Ackermann *m_ackermann;
    FormRecursion3Hailstone *m_hailstone;
    FormRecursion3Capicuas *m_capicuas;
};
