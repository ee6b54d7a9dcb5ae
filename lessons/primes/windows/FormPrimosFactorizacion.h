// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"
#include "lessons/primes/TablaDeFactores.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>

class ColFactores;
class FormLeccion;
class ModeloFactores;
class PanelDePasos;
struct RastroDeDivision;
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

    Tareas &tareas() { return m_tareas; }
    PanelDePasos *pasos() const { return m_pasos; }

Q_SIGNALS:
    /// How long the factorization that has ended took, as "hh:nn:ss".
    void tiempoMedido(const QString &tiempo);

private:
    enum Algoritmo { Ingenuo, Mejorado, Avanzado };

    Tarea<> BtnFactoriza_Click();
    void TimerFactorizando_Timer();
    void FlexFactores_EnterCell(int fila);

    void detiene();
    Algoritmo algoritmo() const;
    bool excedeElLimite(const QString &numero);
    void ponEnMarcha(Algoritmo elegido, const QString &numero);
    Tarea<> factoriza(Algoritmo elegido, QString numero, Moneda moneda);
    Tarea<TablaDeFactores> divide(Algoritmo elegido, QString numero, Moneda moneda,
                                  Billete billete);
    Tarea<TablaDeFactores> halla(Algoritmo elegido, QString numero, Moneda moneda, Billete billete);
    void muestra(const TablaDeFactores &tabla);

    std::unique_ptr<Ui::FormPrimosFactorizacion> ui;
    ModeloFactores *m_modelo;
    PanelDePasos *m_pasos;
    BotonDeCorrida *m_boton;
    std::unique_ptr<ColFactores> m_factores;    ///< those found by trial division
    std::shared_ptr<RastroDeDivision> m_rastro; ///< of the trial division that runs, or null
    QString m_numero;
    qsizetype m_divisionesVistas = 0;
    TareasDeVentana m_tareas;
};
