// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/key/ClsRSA.h"
#include "lessons/rsa/steps/Ataques.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>
#include <optional>

class PanelDePasos;

namespace Ui {
class FormRSAAtaques;
}

/// The bench of attacks: one is chosen, and the own key or a published one; how it ends stands in
/// the steps of the topic. It reads the key and never changes it.
class FormRSAAtaques : public QWidget
{
    Q_OBJECT

public:
    /// `pasos` belongs to the topic.
    FormRSAAtaques(std::shared_ptr<const ClsRSA> clave, PanelDePasos *pasos, QWidget *tema);
    ~FormRSAAtaques() override;

    /// Other steps take the place of the attack's: one that is on shows nothing any more.
    void abandona();

    Tareas &tareas() { return m_tareas; }

private:
    std::optional<ClaveEnCifras> elegida() const;
    Tarea<> cmdAtacar_Click();

    std::unique_ptr<Ui::FormRSAAtaques> ui;
    std::shared_ptr<const ClsRSA> m_clave;
    PanelDePasos *m_pasos;
    BotonDeCorrida *m_atacar;
    int m_turno = 0; ///< grows when what an attack would show is no longer wanted
    TareasDeVentana m_tareas{this};
};

/// The numbers of a key as steps take them.
ClaveEnCifras enCifras(const ClsRSA &clave);
