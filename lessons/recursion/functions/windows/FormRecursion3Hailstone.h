// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/functions/Granizo.h"
#include "lessons/recursion/functions/ModeloGranizo.h"
#include "shell/core/steps/Pasos.h"
#include "shell/frame/Evento.h"

#include <QTimer>
#include <QWidget>
#include <memory>

class BotonDeCorrida;

namespace Ui {
class FormRecursion3Hailstone;
}

/// The tab "Hailstone": the sequence from a number of any size.
class FormRecursion3Hailstone : public QWidget
{
    Q_OBJECT

public:
    /// Runs stop by the stop line that the tabs share.
    FormRecursion3Hailstone(std::shared_ptr<Parada> parada, QWidget *padre);
    ~FormRecursion3Hailstone() override;

Q_SIGNALS:
    /// Why the last result holds; none while there is no result.
    void hayPasos(const Pasos &pasos);

private:
    void preparaRejilla();
    void empieza();
    Tarea<> corre();
    void termina();
    void muestraAvance();
    void muestraCurva();
    void muestraFin(const QString &inicio, FinDeGranizo fin);
    Pasos pasosDe(QString inicio, FinDeGranizo fin) const;

    void cmdHail_Click();
    void PicHail_Senalado(int indice);

    std::unique_ptr<Ui::FormRecursion3Hailstone> ui;
    BotonDeCorrida *m_corrida;
    std::shared_ptr<HistoriaGranizo> m_historia = std::make_shared<HistoriaGranizo>();
    ModeloGranizo m_modelo;
    QTimer m_pantalla{this};
    QTimer m_pantallaDeCurva{this};
    QList<QPointF> m_puntos; ///< of the curve in sight
    TareasDeVentana m_tareas;
};
