// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/complexity/AjusteExponencial.h"
#include "lessons/complexity/FibonacciMedido.h"
#include "shell/core/ModeloFilas.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>

class FormLeccion;
class PanelDePasos;

namespace Ui {
class FormRecursion1Fibonacci;
}

/// The topic "Fibonacci": the recursive form timed against the one with a memory and the iterative
/// one.
class FormRecursion1Fibonacci : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion1Fibonacci(FormLeccion *leccion);
    ~FormRecursion1Fibonacci() override;

    Tareas &tareas() { return m_tareas; }
    PanelDePasos *pasos() const { return m_pasos; }

private:
    Tarea<> cmdMedir_Click();
    void TxtHasta_Change();
    void optMagnitud_Click();

    Tarea<> empieza();
    Tarea<> mide(int hasta);
    void limpia();
    void agrega(int n, const MedidasDeFibonacci &medidas);
    void representa();
    void muestraAjuste();
    void senalaPunto(int indice);
    /// What the plot shows of the recursive form: its calls or its nanoseconds.
    double magnitud(const Medida &medida) const;

    std::unique_ptr<Ui::FormRecursion1Fibonacci> ui;
    ModeloFilas m_modelo;
    PanelDePasos *m_pasos;
    QList<Medida> m_recursivas; ///< from n = 1 on
    std::optional<AjusteExponencial> m_ajuste;
    BotonDeCorrida *m_boton;
    TareasDeVentana m_tareas;
};
