// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/sheets/Clase.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>

namespace Ui {
class FormPracticasClase;
}

/// The topic "Clase": the results that students have saved into a folder, as a grid of kinds
/// against students, and the mistakes that are common.
class FormPracticasClase : public QWidget
{
    Q_OBJECT

public:
    explicit FormPracticasClase(QWidget *padre);
    ~FormPracticasClase() override;

    Tareas &tareas() { return m_tareas; }

protected:
    void showEvent(QShowEvent *suceso) override;

private:
    void construye();
    void muestra();
    Tarea<> cmdCarpeta_Click();

    std::unique_ptr<Ui::FormPracticasClase> ui; ///< null until it is first seen
    Clase m_clase;
    TareasDeVentana m_tareas{this};
};
