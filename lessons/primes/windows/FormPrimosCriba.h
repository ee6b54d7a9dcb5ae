// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/primes/PrimosDelServicio.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>

class FormLeccion;
class ModeloPrimos;
class PanelDePasos;
namespace Ui {
class FormPrimosCriba;
}

/// The topic "Criba de Eratóstenes": the primes up to a bound, by the sieve of the lesson or by
/// libbignum.
class FormPrimosCriba : public QWidget
{
    Q_OBJECT

public:
    explicit FormPrimosCriba(FormLeccion *leccion);
    ~FormPrimosCriba() override;

    Tareas &tareas() { return m_tareas; }
    PanelDePasos *pasos() const { return m_pasos; }

    /// Writes a time into the label of the panel.
    void muestraTiempo(const QString &tiempo);

private:
    Tarea<> BtnCriba_Click();
    void ponEnMarcha();
    Tarea<PrimosDelServicio> criba(std::int32_t limite, Billete billete,
                                   std::function<void(int porcentaje)> avance);
    void muestraPrimos(PrimosDelServicio lista, bool detenida);

    std::unique_ptr<Ui::FormPrimosCriba> ui;
    FormLeccion *m_leccion;
    ModeloPrimos *m_modelo;
    PanelDePasos *m_pasos;
    BotonDeCorrida *m_boton;
    TareasDeVentana m_tareas;
};
