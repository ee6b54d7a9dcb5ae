// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/ModeloFilas.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>

class BotonDeCorrida;
class PanelDePasos;

namespace Ui {
class FormPrimosTest;
}

/// The topic "Test de primos": is a number prime, which prime comes next, and a random prime of so
/// many bits, with a traffic light for the verdict.
class FormPrimosTest : public QWidget
{
    Q_OBJECT

public:
    /// `leccion` is the window whose mouse pointer tells that a search is going on.
    explicit FormPrimosTest(QWidget *leccion);
    ~FormPrimosTest() override;

    PanelDePasos *pasos() const { return m_pasos; }

    TareasDeVentana &tareas() { return m_tareas; }

private:
    class Reloj;

    void SetSemaforo(bool primo);
    bool muestraPrimo(const QString &primo);
    void ponVeredicto(const QString &texto);

    void txtNumero_Change();
    Tarea<> cmdEsPrimo_Click();
    Tarea<> cmdSigPrimo_Click();
    void txtNumBits_Change();
    Tarea<> cmdNumBits_Click();
    void detenida();
    void quitaEspera();

    void preparaPasos();
    void anota(const QString &numero, bool primo, int bits);
    void muestraPasos();
    QString baseElegida();
    void cmdCarmichael_Click();
    void FlexHistorial_Activated(const QModelIndex &celda);

    std::unique_ptr<Ui::FormPrimosTest> ui;
    QWidget *m_leccion;
    BotonDeCorrida *m_corrida;
    PanelDePasos *m_pasos;
    ModeloFilas m_historial;
    QString m_probado; ///< the number of the verdict in sight; empty once the field has changed
    bool m_esPrimo = false;
    TareasDeVentana m_tareas;
};
