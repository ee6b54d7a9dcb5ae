// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Parada.h"

#include "shell/core/run/Corrutina.h"
#include <chrono>
#include <memory>

class Cesiones;

/// The ticket of one run: whether it has been stopped, and its yields. Logic takes it by value and
/// awaits `ceder()` once a step. Copies belong to the same run. A ticket made by itself belongs to
/// no run: it is never stopped and never yields.
class Billete
{
public:
    /// How long a run keeps the thread before the event queue is served.
    static constexpr std::chrono::milliseconds Plazo{10};

    Billete();
    Billete(std::shared_ptr<Parada> parada, std::shared_ptr<Cesiones> cesiones);

    bool detenida() const { return m_parada && m_parada->detenida(m_numero); }

    /// Whether a later run on the same stop line has begun, to which what is shown belongs now.
    bool superada() const { return m_parada && m_parada->superada(m_numero); }

    /// Asks all runs of this stop line to stop, this one among them.
    void detener() const;

    /// Time that the run has spent suspended.
    std::chrono::nanoseconds tiempoCedido() const { return m_ritmo->cedido; }

    class Cesion
    {
    public:
        Cesion(const Billete &billete, bool ya) : m_billete(billete), m_ya(ya) {}
        Cesion(const Cesion &) = delete;
        Cesion &operator=(const Cesion &) = delete;
        ~Cesion();

        bool await_ready() const
        {
            Ritmo &ritmo = *m_billete.m_ritmo;
            return !m_ya && (--ritmo.pasosHastaReloj > 0 || !m_billete.vencePlazo());
        }
        bool await_suspend(std::coroutine_handle<> quien);
        void await_resume();

    private:
        const Billete &m_billete;
        std::coroutine_handle<> m_quien;
        bool m_ya;
    };

    /// Yields when Plazo has passed since the last yield; else this is ready at once, and nearly
    /// always only counts down to the next reading of the clock.
    Cesion ceder() const { return {*this, false}; }

    /// Yields at once.
    Cesion cederYa() const { return {*this, true}; }

private:
    using Reloj = std::chrono::steady_clock;

    /// When the clock was read and the thread given up; the same for all copies.
    struct Ritmo
    {
        Reloj::time_point ultimaCesion = Reloj::now();
        Reloj::time_point ultimaLectura = ultimaCesion;
        std::chrono::nanoseconds cedido{};
        int pasosEntreLecturas = 1;
        int pasosHastaReloj = 1;
    };

    bool vencePlazo() const;

    std::shared_ptr<Parada> m_parada;
    std::shared_ptr<Cesiones> m_cesiones;
    std::shared_ptr<Ritmo> m_ritmo;
    std::uint64_t m_numero = 0;
};
