// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/run/Tareas.h"

#include <QObject>
#include <QWidget>
#include <functional>
#include <type_traits>

/// Shows a run-time error to the user: title "Error en tiempo de ejecución", text its Spanish name.
void informaError(QWidget *ventana, const ErrorEjecucion &error);

/// The same under the title "No se pudo guardar": what was to be saved stands in the window alone.
void informaNoGuardado(QWidget *ventana, const ErrorEjecucion &error);

/// As the first for any exception; what is none of ours is told by what it says of itself.
void informaError(QWidget *ventana, const std::exception_ptr &error);

/// Runs what an event asks for. An error ends it, is shown once, and goes no further: no exception
/// may cross a frame of Qt.
void evento(QWidget *ventana, const std::function<void()> &accion);

/// The tasks of a window, whose errors are shown as those of its events. `parada` is the stop line
/// where several windows share one.
class TareasDeVentana final : public Tareas
{
public:
    explicit TareasDeVentana(QWidget *ventana,
                             std::shared_ptr<Parada> parada = std::make_shared<Parada>());
};

/// Whether a handler is a task: begun by its event, it may outlast it.
template <typename T>
struct EsTarea : std::false_type
{
};
template <>
struct EsTarea<Tarea<>> : std::true_type
{
};

/// Calls a handler; one that is a task is begun among those of its window (`tareas()`).
template <typename Ventana, typename Manejador, typename... Argumentos>
void empiezaManejador(Ventana *ventana, const Manejador &manejador, const Argumentos &...argumentos)
{
    if constexpr (EsTarea<std::invoke_result_t<Manejador, Argumentos...>>::value)
        ventana->tareas().lanza(std::invoke(manejador, argumentos...));
    else
        std::invoke(manejador, argumentos...);
}

/// With the first argument, or with none at all.
template <typename Ventana, typename Manejador, typename... Argumentos>
void empiezaConElPrimero(Ventana *ventana, const Manejador &manejador,
                         const Argumentos &...argumentos)
{
    const auto prueba = [&](const auto &primero, const auto &...) {
        if constexpr (std::is_invocable_v<Manejador, decltype(primero)>)
            empiezaManejador(ventana, manejador, primero);
        else
            empiezaManejador(ventana, manejador);
    };
    if constexpr (sizeof...(Argumentos) == 0)
        empiezaManejador(ventana, manejador);
    else
        prueba(argumentos...);
}

/// Calls a handler with as many of a signal's arguments as it takes: all, the first, or none. A
/// member function is called on the window.
template <typename Ventana, typename Manejador, typename... Argumentos>
void invocaManejador(Ventana *ventana, const Manejador &manejador, const Argumentos &...argumentos)
{
    if constexpr (std::is_member_function_pointer_v<Manejador>) {
        const auto ligado = std::bind_front(manejador, ventana);
        if constexpr (std::is_invocable_v<decltype(ligado), Argumentos...>)
            empiezaManejador(ventana, ligado, argumentos...);
        else
            empiezaConElPrimero(ventana, ligado, argumentos...);
    } else if constexpr (std::is_invocable_v<Manejador, Argumentos...>) {
        std::invoke(manejador, argumentos...);
    } else {
        empiezaConElPrimero(ventana, manejador, argumentos...);
    }
}

/// Connects a signal to a handler of a window at the edge of the event (`evento`).
template <typename Emisor, typename Senal, typename Ventana, typename Manejador>
QMetaObject::Connection conecta(const Emisor *emisor, Senal senal, Ventana *ventana,
                                Manejador manejador)
{
    return QObject::connect(emisor, senal, ventana, [ventana, manejador](const auto &...args) {
        evento(ventana, [&] { invocaManejador(ventana, manejador, args...); });
    });
}
