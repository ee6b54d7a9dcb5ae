#include "shell/frame/Evento.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/Interlocutor.h"

#include <new>

using namespace Qt::Literals::StringLiterals;

void informaError(QWidget *ventana, const ErrorEjecucion &error)
{
    const QString nombre = Traduce(ErrorEjecucion::nombre(error.numero()) + u'.');
    const QString detalle = error.detalle().isEmpty() ? QString() : u'\n' + error.detalle();
    interlocutor().mensaje(ventana, Interlocutor::Icono::Exclamacion, nombre + detalle,
                           Traduce(u"Error en tiempo de ejecución"_s));
}

void evento(QWidget *ventana, const std::function<void()> &accion)
{
    try {
        accion();
    } catch (const ErrorEjecucion &error) {
        informaError(ventana, error);
    } catch (const std::bad_alloc &) {
        informaError(ventana, ErrorEjecucion(ErrorEjecucion::MemoriaInsuficiente));
    }
}
