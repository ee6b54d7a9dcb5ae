#pragma once

#include <QTimer>
#include <QWidget>
#include <chrono>
#include <memory>

class ColFactores;
class FormLeccion;
class ModeloFactores;
class Moneda;
class QAbstractButton;
namespace Ui {
class FormPrimosFactorizacion;
}

/// The topic "Factorización": the prime factors of a number by one of three algorithms, which show
/// how the cost grows.
class FormPrimosFactorizacion : public QWidget
{
    Q_OBJECT

public:
    explicit FormPrimosFactorizacion(FormLeccion *leccion);
    ~FormPrimosFactorizacion() override;

    /// The button that stops the factorization; null while none runs.
    QAbstractButton *botonDeParada() const;

Q_SIGNALS:
    /// How long the factorization that has ended took, as "hh:nn:ss".
    void tiempoMedido(const QString &tiempo);

private:
    enum Algoritmo { Ingenuo, Mejorado, Avanzado };

    void BtnFactoriza_Click();
    void TimerFactorizando_Timer();
    void FlexFactores_EnterCell(int fila);

    void detiene();
    Algoritmo algoritmo() const;
    bool excedeElLimite(const QString &numero);
    void ponEnMarcha();
    void factoriza(Algoritmo elegido, const QString &numero, Moneda moneda);
    void termina();
    QString tiempoTranscurrido() const;
    void ponBotonEnReposo();

    std::unique_ptr<Ui::FormPrimosFactorizacion> ui;
    FormLeccion *m_leccion;
    ModeloFactores *m_modelo;
    std::unique_ptr<ColFactores> m_factores; ///< those found by trial division
    QTimer m_timerFactorizando;
    std::chrono::steady_clock::time_point m_inicio;
};
