// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Corrutina.h"
#include "shell/core/steps/CopiaDePasos.h"
#include "shell/frame/Evento.h"

#include <QTimer>
#include <QWidget>
#include <memory>

class DelegadoDePasos;
class ModeloDePasos;

namespace Ui {
class PanelDePasos;
}

/// "Paso a paso": shows why a tool's result holds, beside or below it (FormLeccion places it). The
/// steps appear one at a time or all at once; the drawing of the current one stands above them.
/// They are copied as text, Markdown or LaTeX, printed, and played where they make a film. Nothing
/// is made of it before it is first seen, so that a lesson opens as fast without it.
class PanelDePasos : public QWidget
{
    Q_OBJECT

public:
    /// `tema`: what the steps are about, as the heading of a printed page; Spanish.
    PanelDePasos(const QString &tema, QWidget *padre);
    ~PanelDePasos() override;

    /// Shows these in place of those before; the first one is current.
    void pon(const Pasos &pasos);
    const Pasos &pasos() const { return m_pasos; }
    /// Shows these, of which those before were the beginning; the last one is current.
    void continua(const Pasos &pasos);
    /// Has the lesson show the panel where it is hidden: what the user asked for stands in it.
    void pideVerse() { Q_EMIT pedido(); }

    /// Puts the keyboard into the list of steps.
    void enfoca();

    Tareas &tareas() { return m_tareas; }

Q_SIGNALS:
    /// Another step is current; −1 when there is none.
    void pasoActual(int paso);
    void pedido();

protected:
    void showEvent(QShowEvent *suceso) override;
    void hideEvent(QHideEvent *suceso) override;
    void changeEvent(QEvent *suceso) override;
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void construye();
    void conectaBotones();
    void muestra();
    void actualiza();
    int actual() const;
    void vaA(int paso);
    void avanza();
    void retrocede();
    void rueda(bool en);

    void cmdAnterior_Click();
    void cmdSiguiente_Click();
    void cmdTodos_Click(bool todos);
    void cmdReproducir_Click(bool en);
    Tarea<> cmdImprimir_Click();
    void copia(FormaDePasos forma);

    QString m_tema;
    Pasos m_pasos;
    std::unique_ptr<Ui::PanelDePasos> ui; ///< null until it is first seen
    ModeloDePasos *m_modelo = nullptr;
    DelegadoDePasos *m_delegado = nullptr;
    bool m_porMostrar = true; ///< other steps came while it was out of sight
    QTimer m_reloj;
    TareasDeVentana m_tareas{this};
};
