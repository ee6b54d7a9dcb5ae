// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/euclid/EcuacionDiofantica.h"

#include <QWidget>
#include <memory>

class ModeloSoluciones;
class PanelDePasos;
class QLineEdit;

namespace Ui {
class FormEuclidesDiofantica;
}

/// The topic "Ecuación diofántica": all ways to change an amount into notes of two values, found
/// anew at every change of a field.
class FormEuclidesDiofantica : public QWidget
{
    Q_OBJECT

public:
    explicit FormEuclidesDiofantica(QWidget *leccion);
    ~FormEuclidesDiofantica() override;

    PanelDePasos *pasos() const { return m_pasos; }

private:
    void muestra(const SolucionesDiofanticas &soluciones);
    void ResuelveEcuacion();
    void txtN_Change(int indice);

    std::unique_ptr<Ui::FormEuclidesDiofantica> ui;
    QList<QLineEdit *> m_txtN; ///< a, b, c
    ModeloSoluciones *m_modelo;
    PanelDePasos *m_pasos;
    EcuacionDiofantica m_ecuacion;
};
