// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/store/Cuaderno.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>

class ModeloFilas;

namespace Ui {
class FormPracticasHistoria;
}

/// The topic "Historia": what was done, day by day as a plot and one by one as a list; the student
/// takes it along, forgets it, or has nothing kept.
class FormPracticasHistoria : public QWidget
{
    Q_OBJECT

public:
    FormPracticasHistoria(Cuaderno &cuaderno, QWidget *padre);
    ~FormPracticasHistoria() override;

    Tareas &tareas() { return m_tareas; }

Q_SIGNALS:
    /// All was forgotten, or is kept from now on or no more.
    void cambiado();

protected:
    void showEvent(QShowEvent *suceso) override;

private:
    void construye();
    void muestra();
    void muestraCurva();
    void chkGuardar_Click(bool guarda);
    Tarea<> cmdExportar_Click();
    Tarea<> cmdBorrar_Click();

    Cuaderno &m_cuaderno;
    std::unique_ptr<Ui::FormPracticasHistoria> ui; ///< null until it is first seen
    ModeloFilas *m_filas = nullptr;
    TareasDeVentana m_tareas{this};
};
