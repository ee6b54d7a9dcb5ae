// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class ModeloDePasos;
class PanelDePasos;
class TablaPorRellenar;

namespace Ui {
class PanelDePasos;
}

/// "Predecir" of a panel of steps: the table of the current step, of which the student hides and
/// fills in cells, stands in the place of the list, which would tell what is hidden. Offered where
/// that table holds a whole number; a step without one, and other steps, end it. The table is made
/// when it is first asked for.
class Prediccion : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the panel; `ui` and `modelo` are the panel's, and live as long.
    Prediccion(const Ui::PanelDePasos &ui, const ModeloDePasos &modelo, PanelDePasos *panel);

private:
    void ofrece(int paso);
    void cmdPredecir_Click(bool predice);
    void creaTabla();
    void muestra(bool predice);

    const Ui::PanelDePasos &m_ui;
    const ModeloDePasos &m_modelo;
    TablaPorRellenar *m_tabla = nullptr; ///< made when it is first asked for
    int m_paso = -1;                     ///< whose table may be predicted
};
