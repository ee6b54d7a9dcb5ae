// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QObject>
#include <functional>
#include <list>
#include <memory>

/// The tasks of a window: what it has begun and not ended, runs that compute as well as handlers
/// that wait for an answer. It is the window's last member, so that it dies first and every
/// suspended body with it, before anything they use is gone.
class Tareas : private tarea::Promesa::Dueno
{
public:
    /// What is done with the error that ended a task.
    using AlFallar = std::function<void(const std::exception_ptr &)>;

    /// Windows that share a stop flag hand the same `parada` to their tasks.
    explicit Tareas(AlFallar alFallar, std::shared_ptr<Parada> parada = std::make_shared<Parada>());
    ~Tareas();
    Tareas(const Tareas &) = delete;
    Tareas &operator=(const Tareas &) = delete;

    /// Begins a task: runs it up to its first suspension.
    void lanza(Tarea<> tarea);

    /// A ticket for a run that begins now.
    Billete billete() const { return {m_parada, m_cesiones}; }

    /// Stops every run that has begun on this stop line so far.
    void detener() const { m_parada->detener(); }

    bool vacias() const { return m_vivas == 0; }

private:
    void haTerminado(std::coroutine_handle<> tarea) noexcept override;
    void entierra();

    AlFallar m_alFallar;
    std::shared_ptr<Parada> m_parada;
    std::shared_ptr<Cesiones> m_cesiones;
    std::list<Tarea<>> m_tareas;
    int m_vivas = 0;
    QObject m_contexto; ///< a burial that is queued dies with it
};
