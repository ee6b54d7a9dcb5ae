#pragma once

#include "lessons/recursion/functions/Granizo.h"
#include "lessons/recursion/functions/ModeloGranizo.h"

#include <QTimer>
#include <QWidget>
#include <memory>

class QAbstractButton;

namespace Ui {
class FormRecursion3Hailstone;
}

/// The tab "Hailstone": the sequence from a number of any size.
class FormRecursion3Hailstone : public QWidget
{
    Q_OBJECT

public:
    FormRecursion3Hailstone(Corrida &corrida, QWidget *padre);
    ~FormRecursion3Hailstone() override;

    /// The button that stops the run; null without one.
    QAbstractButton *botonDeParada() const;

private:
    void empieza();
    void termina();
    void muestraAvance();
    void muestraCurva();
    void muestraFin(const QString &inicio, FinDeGranizo fin);

    void cmdHail_Click();
    void PicHail_Senalado(int indice);

    std::unique_ptr<Ui::FormRecursion3Hailstone> ui;
    Corrida &m_corrida;
    HistoriaGranizo m_historia;
    ModeloGranizo m_modelo;
    QTimer m_pantalla{this};
    QTimer m_pantallaDeCurva{this};
    QList<QPointF> m_puntos; ///< of the curve in sight
    bool m_calculando = false;
};
