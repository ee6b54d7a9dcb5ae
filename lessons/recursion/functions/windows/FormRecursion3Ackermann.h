#pragma once

#include "lessons/recursion/functions/Ack.h"
#include "lessons/recursion/functions/windows/ModeloAck.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <optional>

class QAbstractButton;

namespace Ui {
class FormRecursion3Ackermann;
}

/// The tab "Ackermann": the function with its memory in sight.
class FormRecursion3Ackermann : public QWidget
{
    Q_OBJECT

public:
    FormRecursion3Ackermann(Corrida &corrida, QWidget *padre);
    ~FormRecursion3Ackermann() override;

    /// The button that stops the run; null without one.
    QAbstractButton *botonDeParada() const;

private:
    void empieza();
    void calcula(Ack::Llamada llamada, std::int32_t corte);
    void termina();
    void muestraAvance();
    void vaACelda(Ack::Llamada llamada);

    void cmdAck_Click();
    void TimerAck_Timer();

    std::unique_ptr<Ui::FormRecursion3Ackermann> ui;
    Corrida &m_corrida;
    MemoriaAck m_memoria;
    ModeloAck m_modelo;
    std::optional<Ack> m_ack;
    QTimer m_timerAck{this};
    QTimer m_pantalla{this};
    QElapsedTimer m_reloj;
    int m_fotograma = 0;
};
