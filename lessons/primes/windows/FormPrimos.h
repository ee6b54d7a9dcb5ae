#pragma once

#include "shell/frame/FormLeccion.h"

class FormPrimosCriba;
class FormPrimosFactorizacion;

/// The lesson on primes.
class FormPrimos : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormPrimos(QWidget *padre = nullptr);

protected:
    QAbstractButton *botonDeParada() const override;

private:
    FormPrimosCriba *m_criba;
    FormPrimosFactorizacion *m_factorizacion;
};
