// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Corrutina.h"
#include <exception>
#include <optional>
#include <utility>

// What resumes a body in a browser is not inlined into another, nor changed for its one caller: the
// compiler would make the jump of it that not every browser knows, or leave locals in the frame
// that is gone when it returns.
#ifdef __EMSCRIPTEN__
#define SIN_SALTO [[gnu::noinline, gnu::used]]
#else
#define SIN_SALTO
#endif

template <typename T = void>
class Tarea;

namespace tarea {

/// What the promises of all tasks share: the error that ended the body, and who goes on after it.
class Promesa
{
public:
    /// Who wants to know that a task which nobody awaits has come to its end.
    class Dueno
    {
    public:
        virtual void haTerminado(std::coroutine_handle<> tarea) noexcept = 0;

    protected:
        ~Dueno() = default;
    };

    std::suspend_always initial_suspend() const noexcept { return {}; }
    void unhandled_exception() noexcept { m_error = std::current_exception(); }

    void continuaCon(std::coroutine_handle<> siguiente) { m_siguiente = siguiente; }
    void ponDueno(Dueno *dueno) { m_dueno = dueno; }
    const std::exception_ptr &error() const { return m_error; }

    class Final
    {
    public:
        bool await_ready() const noexcept { return false; }
        template <typename P>
        std::coroutine_handle<> siguienteDe(std::coroutine_handle<P> acabada) const noexcept
        {
            // The caller's frame may destroy this one: it is read before anything goes on.
            const Promesa &promesa = acabada.promise();
            if (promesa.m_siguiente)
                return promesa.m_siguiente;
            if (promesa.m_dueno)
                promesa.m_dueno->haTerminado(acabada);
            return std::noop_coroutine();
        }
#ifdef __EMSCRIPTEN__
        // Not every browser can jump from one body into another: the next one goes on inside this
        // call, as deep as tasks stand in each other.
        template <typename P>
        SIN_SALTO void await_suspend(std::coroutine_handle<P> acabada) const noexcept
        {
            siguienteDe(acabada).resume();
        }
#else
        template <typename P>
        std::coroutine_handle<> await_suspend(std::coroutine_handle<P> acabada) const noexcept
        {
            return siguienteDe(acabada);
        }
#endif
        void await_resume() const noexcept {}
    };
    Final final_suspend() const noexcept
    {
        return {};
    }

protected:
    void lanzaSiFallo() const
    {
        if (m_error)
            std::rethrow_exception(m_error);
    }

private:
    std::exception_ptr m_error;
    std::coroutine_handle<> m_siguiente;
    Dueno *m_dueno = nullptr;
};

template <typename T>
class PromesaDe : public Promesa
{
public:
    Tarea<T> get_return_object();
    template <typename U>
    void return_value(U &&valor)
    {
        m_valor.emplace(std::forward<U>(valor));
    }
    T resultado()
    {
        lanzaSiFallo();
        return std::move(*m_valor);
    }

private:
    std::optional<T> m_valor;
};

template <>
class PromesaDe<void> : public Promesa
{
public:
    Tarea<void> get_return_object();
    void return_void() const noexcept {}
    void resultado() const { lanzaSiFallo(); }
};

} // namespace tarea

/// Work that can be suspended and gone on with later, on the one thread. Its body does not begin
/// before it is awaited by another task (`co_await`, which gives its value or throws what ended it)
/// or started by `Tareas`. A task owns the frame of its body: destroyed while it is suspended, it
/// takes its locals and all it awaits with it, and is never heard of again.
///
/// Arguments are taken by value, because the caller's may be gone when the body goes on; a lambda
/// that captures must outlive the task it made. A body never deletes the window it works for but
/// by `deleteLater`.
template <typename T>
class [[nodiscard]] Tarea
{
public:
    using promise_type = tarea::PromesaDe<T>;
    using Mango = std::coroutine_handle<promise_type>;

    explicit Tarea(Mango mango) : m_mango(mango) {}
    Tarea(Tarea &&otra) noexcept : m_mango(std::exchange(otra.m_mango, {})) {}
    Tarea &operator=(Tarea &&otra) noexcept
    {
        std::swap(m_mango, otra.m_mango);
        return *this;
    }
    ~Tarea()
    {
        if (m_mango)
            m_mango.destroy();
    }

    /// The body, for what starts it (`Tareas`).
    Mango mango() const { return m_mango; }

    bool terminada() const { return m_mango.done(); }

    /// Does the whole body at once. For a task that is known not to be suspended: one whose ticket
    /// never yields, and that asks nobody.
    T completa() &&
    {
        m_mango.resume();
        if (!m_mango.done())
            std::terminate(); // it was suspended, and nobody would ever go on with it
        return m_mango.promise().resultado();
    }

    class Espera
    {
    public:
        explicit Espera(Mango mango) : m_mango(mango) {}
        bool await_ready() const noexcept { return false; }
        /// Runs the body up to its first suspension. One that comes to its end without any lets the
        /// caller go on in its loop, instead of a frame deeper at each turn.
        SIN_SALTO bool await_suspend(std::coroutine_handle<> quien) const
        {
            m_mango.resume();
            if (m_mango.done())
                return false;
            m_mango.promise().continuaCon(quien);
            return true;
        }
        T await_resume() const { return m_mango.promise().resultado(); }

    private:
        Mango m_mango;
    };
    Espera operator co_await() const &noexcept { return Espera(m_mango); }
    Espera operator co_await() const &&noexcept { return Espera(m_mango); }

private:
    Mango m_mango;
};

template <typename T>
Tarea<T> tarea::PromesaDe<T>::get_return_object()
{
    return Tarea<T>(std::coroutine_handle<PromesaDe>::from_promise(*this));
}

inline Tarea<void> tarea::PromesaDe<void>::get_return_object()
{
    return Tarea<void>(std::coroutine_handle<PromesaDe>::from_promise(*this));
}
