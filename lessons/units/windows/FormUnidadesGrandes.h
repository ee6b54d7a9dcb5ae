// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Evento.h"

#include <QString>
#include <QWidget>
#include <memory>
#include <optional>

class PanelDePasos;
class QLabel;

namespace Ui {
class FormUnidadesGrandes;
}

/// The topic "Números grandes": greatest common divisor, inverse and Euler's function, by the
/// library and by factors, for numbers of hundreds of digits.
class FormUnidadesGrandes : public QWidget
{
    Q_OBJECT

public:
    explicit FormUnidadesGrandes(QWidget *leccion);
    ~FormUnidadesGrandes() override;

    PanelDePasos *pasos() const { return m_pasos; }

    Tareas &tareas() { return m_tareas; }

private:
    std::optional<QString> modulo(QLabel *rotulo);
    std::optional<QString> elemento();
    BotonDeCorrida::Marcha empiezaEspera();
    Pasos pasosDeEuler(const QString &n, const QString &fi);
    void muestraFi(const QString &n, const QString &fi, const QString &rotulo);

    void txtGrande_Change();
    void cmdInverso_Click();
    Tarea<> cmdFi_Click();
    Tarea<> cmdFactores_Click();
    Tarea<> cmdEjemplo_Click();
    void detenida();
    void quitaDetener();

    std::unique_ptr<Ui::FormUnidadesGrandes> ui;
    QWidget *m_leccion;
    PanelDePasos *m_pasos;
    BotonDeCorrida *m_corrida;
    QString m_fi; ///< the library's value for the number in the field; empty when it was not asked
    TareasDeVentana m_tareas{this};
};
