// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/congruences/SistemaCongruencias.h"

#include <QWidget>
#include <memory>

class ModeloCongruencias;
class PanelDePasos;

namespace Ui {
class FormTCRSistema;
}

/// The topic with the tool: a system of congruences, posed at random or written by the student, its
/// solution, and the student's answer.
class FormTCRSistema : public QWidget
{
    Q_OBJECT

public:
    explicit FormTCRSistema(QWidget *leccion);
    ~FormTCRSistema() override;

    PanelDePasos *pasos() const { return m_pasos; }

private:
    void preparaRejilla();
    bool hayQueResolver();
    void abreRespuesta();
    void cierraRespuesta(const Resolucion &resolucion);
    void borraCeldas();
    void pegaCeldas();

    void cmdProblema1_Click();
    void cmdResolver1_Click();
    void cmdSol1_Click();
    void FlexTCR_Change();

    std::unique_ptr<Ui::FormTCRSistema> ui;
    ModeloCongruencias *m_modelo;
    PanelDePasos *m_pasos;
};
