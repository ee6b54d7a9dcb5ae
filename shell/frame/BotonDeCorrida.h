// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <chrono>

class QAbstractButton;
class QLabel;
class QWidget;
class ReproductorAVI;

/// The one button that starts a run and stops it: it wears the look of what a click would do
/// (picture, caption, tooltip, accessible name), and keeps the clock and the waiting pointer of the
/// run. The lesson's Escape key presses it for as long as a run is on.
///
/// A click that starts calls `empieza()` and keeps what it gives, a `Marcha`, for as long as the
/// run lasts; a click while `enMarcha()` calls `detiene()`.
class BotonDeCorrida : public QObject
{
    Q_OBJECT

public:
    /// One of the two looks. An empty caption leaves the button without one; the tooltip is its
    /// accessible name as well.
    struct Aspecto
    {
        QString imagen; ///< name of the picture
        QString texto;
        QString consejo;
    };

    /// The caption, tooltip and picture of the plain "Calcular" and "Detener" buttons.
    static Aspecto calcular();
    static Aspecto detener();

    BotonDeCorrida(QAbstractButton *boton, Aspecto enReposo, Aspecto enMarcha);

    /// A label that shows the elapsed time as "hh:nn:ss", renewed by `timer()`.
    void ponReloj(QLabel *rotulo, std::chrono::milliseconds intervalo);

    /// The widget over which the pointer is an hourglass during a run.
    void ponEspera(QWidget *donde);

    /// An animation that plays during a run.
    void ponAnimacion(ReproductorAVI *animacion);

    /// When the button goes back to its rest after a stop: at once, or when the run has returned.
    enum class Reposo { AlDetener, AlVolver };
    void ponReposo(Reposo cuando) { m_reposo = cuando; }

    QAbstractButton *boton() const;
    QTimer &timer() { return m_timer; }

    /// A run is on and nobody has stopped it.
    bool enMarcha() const { return m_enMarcha; }

    /// A run that has begun. When it goes, the button goes back to its rest and the clock stops,
    /// unless a later run has taken the button over meanwhile.
    class Marcha
    {
    public:
        Marcha(BotonDeCorrida *boton, Billete billete);
        Marcha(Marcha &&otra) noexcept;
        Marcha &operator=(Marcha &&) = delete;
        ~Marcha();

        const Billete &billete() const { return m_billete; }

        /// Whether what this run finds may be shown: no later run has begun on this button.
        bool vigente() const;

        /// Ends the run before its time, as if it went.
        void termina();

        /// Leaves the button in motion when the run goes, until a click on it stops it.
        void deja() { m_boton = nullptr; }

    private:
        BotonDeCorrida *m_boton;
        Billete m_billete;
        std::uint64_t m_turno;
    };

    /// Shows the look of a run that is about to begin, and the hourglass; a click still starts, and
    /// takes the button over.
    void anuncia();

    /// Grows with whatever takes the button over: what is announced or begins.
    std::uint64_t turno() const { return m_turno; }

    /// Puts the button, the pointer and the clock into motion for the run of that ticket.
    Marcha empieza(Billete billete);

    /// Stops the run: its ticket, and all others of its stop line.
    void detiene();

    /// Time since the last start, as the clock shows it.
    QString tiempo() const;

Q_SIGNALS:
    void empezada();
    void detenida();
    void terminada();

private:
    void vuelve(std::uint64_t turno);
    void reposa();
    void viste(const Aspecto &aspecto);
    void muestraTiempo();

    // A run may end because its window does, parts of which are gone before the others.
    QPointer<QAbstractButton> m_boton;
    QPointer<QLabel> m_reloj;
    QPointer<QWidget> m_espera;
    QPointer<ReproductorAVI> m_animacion;
    Aspecto m_aspectoEnReposo;
    Aspecto m_aspectoEnMarcha;
    QTimer m_timer{this};
    std::chrono::steady_clock::time_point m_inicio;
    Billete m_billete;
    std::uint64_t m_turno = 0;
    Reposo m_reposo = Reposo::AlDetener;
    bool m_enMarcha = false;
};
