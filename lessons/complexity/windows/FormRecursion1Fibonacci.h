#pragma once

#include "lessons/complexity/AjusteExponencial.h"
#include "lessons/complexity/FibonacciMedido.h"
#include "shell/core/ModeloFilas.h"

#include <QWidget>
#include <memory>

class QAbstractButton;

namespace Ui {
class FormRecursion1Fibonacci;
}

/// The topic "Fibonacci": the recursive form timed against the one with a memory and the iterative
/// one.
class FormRecursion1Fibonacci : public QWidget
{
    Q_OBJECT

public:
    FormRecursion1Fibonacci(Corrida &corrida, QWidget *padre);
    ~FormRecursion1Fibonacci() override;

    /// The button that stops the run; null without one.
    QAbstractButton *botonDeParada() const;

private:
    void cmdMedir_Click();
    void TxtHasta_Change();
    void optMagnitud_Click();

    void empieza();
    void termina();
    void mide(int hasta);
    bool mideUno(int n);
    void representa();
    void muestraAjuste();
    void senalaPunto(int indice);
    /// What the plot shows of the recursive form: its calls or its nanoseconds.
    double magnitud(const Medida &medida) const;

    std::unique_ptr<Ui::FormRecursion1Fibonacci> ui;
    Corrida &m_corrida;
    ModeloFilas m_modelo;
    QList<Medida> m_recursivas; ///< from n = 1 on
    std::optional<AjusteExponencial> m_ajuste;
    bool m_calculando = false;
};
