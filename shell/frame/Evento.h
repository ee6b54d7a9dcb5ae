#pragma once

#include "bignum/gateway/ErrorEjecucion.h"

#include <QObject>
#include <QWidget>
#include <functional>
#include <type_traits>

/// Shows a run-time error to the user: title "Error en tiempo de ejecución", text its Spanish name.
void informaError(QWidget *ventana, const ErrorEjecucion &error);

/// Runs what an event asks for. An error ends it, is shown once, and goes no further: no exception
/// may cross a frame of Qt.
void evento(QWidget *ventana, const std::function<void()> &accion);

/// Calls a handler with as many of a signal's arguments as it takes: all, the first, or none. A
/// member function is called on the window.
template <typename Ventana, typename Manejador, typename... Argumentos>
void invocaManejador(Ventana *ventana, const Manejador &manejador, const Argumentos &...argumentos)
{
    if constexpr (std::is_member_function_pointer_v<Manejador>) {
        invocaManejador(ventana, std::bind_front(manejador, ventana), argumentos...);
    } else if constexpr (std::is_invocable_v<Manejador, Argumentos...>) {
        std::invoke(manejador, argumentos...);
    } else {
        const auto conPrimero = [&](const auto &primero, const auto &...) {
            if constexpr (std::is_invocable_v<Manejador, decltype(primero)>)
                std::invoke(manejador, primero);
            else
                std::invoke(manejador);
        };
        conPrimero(argumentos...);
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
