// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/key/ClsRSA.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Interlocutor.h"

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
    void avisa(Interlocutor::Icono icono, const QString &texto, const QString &titulo);
    void actualizaBuzon();
    void Clave_ValidaClave(bool bien, const QString &mensaje);
    void Clave_CambiaBuzon();

    std::shared_ptr<ClsRSA> m_clave;
    FormRSAClave *m_panelClave;
    FormRSACodificacion *m_panelCodificacion;
    FormRSAMensajes *m_panelMensajes;
};
