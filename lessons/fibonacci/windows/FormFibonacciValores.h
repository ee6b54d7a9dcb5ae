// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/fibonacci/CalculoFibonacci.h"
#include "shell/core/ModeloFilas.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Evento.h"

#include <QTimer>
#include <QWidget>
#include <memory>

class FormLeccion;
class PanelDePasos;

namespace Ui {
class FormFibonacciValores;
}

/// The topic "Valores": F(n) by three methods, and what each of them costs.
class FormFibonacciValores : public QWidget
{
    Q_OBJECT

public:
    explicit FormFibonacciValores(FormLeccion *leccion);
    ~FormFibonacciValores() override;

    PanelDePasos *pasos() const { return m_panelDePasos; }

    Tareas &tareas() { return m_tareas; }

private:
    Tarea<> cmdCalcular_Click();
    void cmdBorrar_Click();
    void TxtN_Change();
    void optMetodo_Click();

    MetodoFibonacci metodo() const;
    Tarea<> empieza();
    void ponEnMarcha();
    void muestraAvance();
    void muestra(MetodoFibonacci metodo, int n, const FibonacciMedido &medido);

    std::unique_ptr<Ui::FormFibonacciValores> ui;
    PanelDePasos *m_panelDePasos;
    ModeloFilas m_comparacion;
    BotonDeCorrida *m_boton;
    std::shared_ptr<CalculoFibonacci> m_calculo; ///< the last one begun
    QTimer m_pantalla{this};
    TareasDeVentana m_tareas;
};
