#pragma once

#include "shell/core/Corrida.h"

#include <QAbstractButton>
#include <functional>

/// The buttons of a topic that start the lesson's runs. For as long as a run lasts, the one that
/// started it stops it: its picture, caption and tooltip say so. The buttons of
/// shell/BotonDeCalculo are at rest as soon as they have told a run to stop, and all look alike
/// then; these wait for the run to return, and go back to a look of their own.
class FormRSACorrida
{
public:
    /// `alCambiar` is called when a run begins and when it has ended.
    explicit FormRSACorrida(
        Corrida &corrida, std::function<void()> alCambiar = [] {});

    /// The button of the run in progress, if it was started by one of these.
    QAbstractButton *botonDeParada() const { return m_parada; }

    /// Whether a click on the button does something as far as runs are concerned.
    bool atiende(const QAbstractButton *boton) const;

    /// A click: stops the run of that button, or begins with `accion` when no run is in progress.
    void pulsa(const QAbstractButton *boton, const std::function<void()> &accion);

    /// Does `accion` as a run of that button, with `consejo` as its tooltip meanwhile. Throws what
    /// `accion` throws.
    void corre(QAbstractButton *boton, const QString &consejo, const std::function<void()> &accion);

private:
    Corrida &m_corrida;
    std::function<void()> m_alCambiar;
    QAbstractButton *m_parada = nullptr;
};
