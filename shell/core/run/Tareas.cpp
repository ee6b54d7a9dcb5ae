// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/run/Tareas.h"

#include "shell/core/run/Cesiones.h"

Tareas::Tareas(AlFallar alFallar, std::shared_ptr<Parada> parada)
    : m_alFallar(std::move(alFallar)),
      m_parada(std::move(parada)),
      m_cesiones(std::make_shared<Cesiones>())
{
}

Tareas::~Tareas()
{
    m_tareas.clear();
}

void Tareas::lanza(Tarea<> tarea)
{
    const auto mango = tarea.mango();
    mango.promise().ponDueno(this);
    m_tareas.push_back(std::move(tarea));
    ++m_vivas;
    mango.resume();
}

void Tareas::haTerminado(std::coroutine_handle<> tarea) noexcept
{
    --m_vivas;
    const auto error = Tarea<>::Mango::from_address(tarea.address()).promise().error();
    // Its frame is still on the stack.
    QMetaObject::invokeMethod(
        &m_contexto, [this] { entierra(); }, Qt::QueuedConnection);
    if (error)
        m_alFallar(error);
}

void Tareas::entierra()
{
    m_tareas.remove_if([](const Tarea<> &tarea) { return tarea.terminada(); });
}
