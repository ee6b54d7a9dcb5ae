#pragma once

#include "lessons/fibonacci/CalculoFibonacci.h"
#include "shell/core/ModeloFilas.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <memory>

class QAbstractButton;

namespace Ui {
class FormFibonacciValores;
}

/// The topic "Valores": F(n) by three methods, and what each of them costs.
class FormFibonacciValores : public QWidget
{
    Q_OBJECT

public:
    FormFibonacciValores(Corrida &corrida, QWidget *padre);
    ~FormFibonacciValores() override;

    /// The button that stops the run; null without one.
    QAbstractButton *botonDeParada() const;

private:
    void cmdCalcular_Click();
    void cmdBorrar_Click();
    void optMetodo_Click();

    MetodoFibonacci metodo() const;
    void empieza();
    void termina();
    void calcula(MetodoFibonacci metodo, int n);
    void muestraAvance();
    void muestraValor(int n, const QString &valor);

    std::unique_ptr<Ui::FormFibonacciValores> ui;
    Corrida &m_corrida;
    ModeloFilas m_comparacion;
    CalculoFibonacci m_calculo;
    QTimer m_pantalla{this};
    QElapsedTimer m_reloj;
    bool m_calculando = false;
};
