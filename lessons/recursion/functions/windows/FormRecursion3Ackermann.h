// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/functions/Ack.h"
#include "lessons/recursion/functions/windows/ModeloAck.h"

#include "shell/core/steps/Pasos.h"
#include "shell/frame/Evento.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <memory>

class BotonDeCorrida;

namespace Ui {
class FormRecursion3Ackermann;
}

/// The tab "Ackermann": the function with its memory in sight.
class FormRecursion3Ackermann : public QWidget
{
    Q_OBJECT

public:
    /// Runs stop by the stop line that the tabs share.
    FormRecursion3Ackermann(std::shared_ptr<Parada> parada, QWidget *padre);
    ~FormRecursion3Ackermann() override;

Q_SIGNALS:
    /// Why the last result holds; none while there is no result.
    void hayPasos(const Pasos &pasos);

private:
    void preparaRejilla();
    void empieza();
    Tarea<> corre(Ack::Llamada llamada, std::int32_t corte);
    void ponEnMarcha();
    void termina();
    void muestraAvance();
    void muestraFin(Ack::Llamada llamada, std::int32_t valor);
    void vaACelda(Ack::Llamada llamada);

    void cmdAck_Click();
    void TimerAck_Timer();

    std::unique_ptr<Ui::FormRecursion3Ackermann> ui;
    BotonDeCorrida *m_corrida;
    std::shared_ptr<MemoriaAck> m_memoria;
    std::shared_ptr<const Ack> m_ack;
    ModeloAck m_modelo;
    QTimer m_timerAck{this};
    QTimer m_pantalla{this};
    QElapsedTimer m_reloj;
    int m_fotograma = 0;
    TareasDeVentana m_tareas;
};
