#pragma once

#include <chrono>
#include <functional>

/// A long computation on the user-interface thread: its stop flag and its yields. A loop calls
/// `ceder()` once a step, tests `detenida()`, and returns when it is set. Each window owns one,
/// shared by all its computations.
class Corrida
{
public:
    /// How long a loop keeps the thread before the event queue runs.
    static constexpr std::chrono::milliseconds Plazo{10};

    /// What runs the pending events; without one, a yield only reads the clock (benchmarks, tests).
    using Cesion = std::function<void()>;
    explicit Corrida(Cesion cesion = sirveEventos) : m_cesion(std::move(cesion)) {}
    Corrida(const Corrida &) = delete;
    Corrida &operator=(const Corrida &) = delete;

    /// Lets the event queue of the application run once.
    static void sirveEventos();

    void detener() { m_detenida = true; }
    void permitir() { m_detenida = false; }
    bool detenida() const { return m_detenida; }

    /// Yields when Plazo has passed since the last yield. Nearly always this only counts down to
    /// the next reading of the clock.
    void ceder()
    {
        if (--m_pasosHastaReloj <= 0)
            miraElReloj();
    }

    /// Yields at once.
    void cederYa();

    /// Marks a computation in progress for as long as it lives. The last one to end calls what
    /// `alTerminar` was given, which is how a window that was closed meanwhile learns that nothing
    /// uses it any more.
    class Tramo
    {
    public:
        explicit Tramo(Corrida &corrida) : m_corrida(corrida) { ++corrida.m_tramos; }
        ~Tramo();
        Tramo(const Tramo &) = delete;
        Tramo &operator=(const Tramo &) = delete;

    private:
        Corrida &m_corrida;
    };

    bool enCurso() const { return m_tramos > 0; }
    void alTerminar(std::function<void()> accion) { m_alTerminar = std::move(accion); }

private:
    using Reloj = std::chrono::steady_clock;
    void miraElReloj();

    Cesion m_cesion;
    std::function<void()> m_alTerminar;
    Reloj::time_point m_ultimaCesion = Reloj::now();
    Reloj::time_point m_ultimaLectura = m_ultimaCesion;
    int m_pasosEntreLecturas = 1;
    int m_pasosHastaReloj = 1;
    int m_tramos = 0;
    bool m_detenida = false;
};
