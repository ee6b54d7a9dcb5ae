#pragma once

#include "lessons/rsa/key/ClsRSA.h"
#include "lessons/rsa/windows/FormRSACorrida.h"
#include "lessons/rsa/windows/TablaDeTextos.h"

#include <QWidget>
#include <memory>

class FormLeccion;

namespace Ui {
class FormRSACodificacion;
}

/// The topic "Codificación y descodificación": a text and its encrypted blocks, with the own key.
class FormRSACodificacion : public QWidget
{
    Q_OBJECT

public:
    /// `clave` is the student's own key.
    FormRSACodificacion(ClsRSA &clave, FormLeccion *leccion);
    ~FormRSACodificacion() override;

    void permiteCodificar(bool permitido);

    /// The button of the run in progress, if it was started here.
    QAbstractButton *botonDeParada() const { return m_mandos.botonDeParada(); }

private:
    void ajustaFilas();
    void codifica();
    void descodifica();
    void cmdCodificar_Click();
    void cmdDescodificar_Click();

    std::unique_ptr<Ui::FormRSACodificacion> ui;
    ClsRSA &m_clave;
    FormLeccion *m_leccion;
    TablaDeTextos m_bloques;
    FormRSACorrida m_mandos;
};
