// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/SucesionModular.h"

#include <QTimer>
#include <QWidget>
#include <memory>
#include <optional>

class PanelDePasos;

namespace Ui {
class FormRecursion2Representacion;
}

/// The topic "Representación": the modulus, the period, and the plot. It keeps the accepted
/// definition and the sequence that it gives with the accepted modulus.
class FormRecursion2Representacion : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion2Representacion(QWidget *leccion);
    ~FormRecursion2Representacion() override;

    /// Another definition: what was computed with the one before goes away.
    void ponDefinicion(const DefinicionRecurrente &definicion);

    /// The window closes: a modulus that was being edited is not wanted any more.
    void olvidaEdicion();

    PanelDePasos *pasos() const { return m_pasos; }

    const DefinicionRecurrente &definicion() const { return m_definicion; }
    /// Nothing until a modulus is accepted.
    const std::optional<SucesionModular> &sucesion() const { return m_sucesion; }

protected:
    void resizeEvent(QResizeEvent *suceso) override;

Q_SIGNALS:
    /// There is another sequence, or none.
    void sucesionCambiada();

private:
    void limpia();
    bool aceptaModulo();
    void muestraRechazo(const NoLeido &razon);
    void calcula(std::int32_t modulo);
    void representa();
    void muestraPeriodo();
    void senalaPunto(int indice);

    void cmdCalcular_Click();
    void TxtModulo_Validate();
    void TimerEureka_Timer();

    std::unique_ptr<Ui::FormRecursion2Representacion> ui;
    DefinicionRecurrente m_definicion;
    std::optional<SucesionModular> m_sucesion;
    PanelDePasos *m_pasos;
    QTimer m_timerEureka{this};
    int m_fotograma = 0;
};
