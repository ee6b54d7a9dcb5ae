#pragma once

#include "lessons/rsa/key/ClsRSA.h"
#include "shell/frame/FormLeccion.h"

#include <memory>

class FormRSAClave;
class FormRSACodificacion;
class FormRSAMensajes;

/// The lesson on RSA: choice of a key, encryption with it, and messages to others.
class FormRSA : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormRSA(QWidget *padre = nullptr);
    ~FormRSA() override;

private:
    void abre();
    void recuperaClave();
    void actualizaBuzon();
    void Clave_ValidaClave(bool bien, const QString &mensaje);
    void Clave_CambiaBuzon();

    std::shared_ptr<ClsRSA> m_clave;
    FormRSAClave *m_panelClave;
    FormRSACodificacion *m_panelCodificacion;
    FormRSAMensajes *m_panelMensajes;
};
