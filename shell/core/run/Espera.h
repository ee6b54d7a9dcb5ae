// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Corrutina.h"
#include <QObject>

/// What a task waits for until somebody says that it has come: `co_await espera` goes on from the
/// event loop after `cumple()`, which may be said before as well. Dies with the task.
class Espera
{
public:
    Espera() = default;
    Espera(const Espera &) = delete;
    Espera &operator=(const Espera &) = delete;

    /// Connections that call `cumple` belong to this object, and end with it.
    QObject *contexto() { return &m_contexto; }

    void cumple()
    {
        if (!m_cumplida && m_quien)
            QMetaObject::invokeMethod(
                &m_contexto, [this] { sigue(); }, Qt::QueuedConnection);
        m_cumplida = true;
    }

    class Turno
    {
    public:
        explicit Turno(Espera &espera) : m_espera(espera) {}
        Turno(const Turno &) = delete;
        Turno &operator=(const Turno &) = delete;
        /// The task may die before what it waits for has come.
        ~Turno() { m_espera.m_quien = {}; }

        bool await_ready() const { return m_espera.m_cumplida; }
        void await_suspend(std::coroutine_handle<> quien) { m_espera.m_quien = quien; }
        void await_resume() const {}

    private:
        Espera &m_espera;
    };
    Turno operator co_await() { return Turno(*this); }

private:
    void sigue() const
    {
        if (m_quien)
            m_quien.resume();
    }

    QObject m_contexto;
    std::coroutine_handle<> m_quien;
    bool m_cumplida = false;
};
