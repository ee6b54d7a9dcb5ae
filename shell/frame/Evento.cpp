// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/Evento.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/Interlocutor.h"

#include <new>

using namespace Qt::Literals::StringLiterals;

namespace {

void informa(QWidget *ventana, const ErrorEjecucion &error, const QString &titulo)
{
    const QString nombre = Traduce(ErrorEjecucion::nombre(error.numero()) + u'.');
    const QString detalle = error.detalle().isEmpty() ? QString() : u'\n' + error.detalle();
    interlocutor().avisa(ventana, Interlocutor::Icono::Exclamacion, nombre + detalle, titulo);
}

} // namespace

void informaError(QWidget *ventana, const ErrorEjecucion &error)
{
    informa(ventana, error, Traduce(u"Error en tiempo de ejecución"_s));
}

void informaNoGuardado(QWidget *ventana, const ErrorEjecucion &error)
{
    informa(ventana, error, Traduce(u"No se pudo guardar"_s));
}

void informaError(QWidget *ventana, const std::exception_ptr &error)
{
    try {
        std::rethrow_exception(error);
    } catch (const ErrorEjecucion &propio) {
        informaError(ventana, propio);
    } catch (const std::bad_alloc &) {
        informaError(ventana, ErrorEjecucion(ErrorEjecucion::MemoriaInsuficiente));
    } catch (const std::exception &otro) {
        informaError(ventana, ErrorEjecucion(ErrorEjecucion::ErrorInterno,
                                             QString::fromLocal8Bit(otro.what())));
    } catch (...) {
        informaError(ventana, ErrorEjecucion(ErrorEjecucion::ErrorInterno));
    }
}

void evento(QWidget *ventana, const std::function<void()> &accion)
{
    try {
        accion();
    } catch (...) {
        informaError(ventana, std::current_exception());
    }
}

TareasDeVentana::TareasDeVentana(QWidget *ventana, std::shared_ptr<Parada> parada)
    : Tareas([ventana](const std::exception_ptr &error) { informaError(ventana, error); },
             std::move(parada))
{
}
