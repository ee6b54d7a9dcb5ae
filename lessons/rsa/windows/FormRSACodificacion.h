// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/key/ClsRSA.h"
#include "lessons/rsa/windows/TablaDeTextos.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>

class PanelDePasos;

namespace Ui {
class FormRSACodificacion;
}

/// The topic "Codificación y descodificación": a text and its encrypted blocks, with the own key.
class FormRSACodificacion : public QWidget
{
    Q_OBJECT

public:
    /// `clave` is the student's own key.
    FormRSACodificacion(std::shared_ptr<ClsRSA> clave, QWidget *leccion);
    ~FormRSACodificacion() override;

    void permiteCodificar(bool permitido);

    PanelDePasos *pasos() const { return m_pasos; }

    Tareas &tareas() { return m_tareas; }

private:
    void ajustaFilas();
    bool empiezaCon(BotonDeCorrida *boton) const;
    void muestra(const QStringList &bloques);
    void txtTextoOriginal_Change();
    Tarea<> cmdCodificar_Click();
    Tarea<> cmdDescodificar_Click();

    std::unique_ptr<Ui::FormRSACodificacion> ui;
    std::shared_ptr<ClsRSA> m_clave;
    TablaDeTextos m_bloques;
    PanelDePasos *m_pasos;
    BotonDeCorrida *m_codificar;
    BotonDeCorrida *m_descodificar;
    bool m_rechazado = false; ///< the text cannot be encrypted, and the label says why
    TareasDeVentana m_tareas{this};
};
