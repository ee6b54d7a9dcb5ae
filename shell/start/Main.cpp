// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/Main.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/core/Traduccion.h"
#include "shell/core/system/Escritorio.h"
#include "shell/core/system/InstanciaUnica.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/TextosDeQt.h"
#include "shell/start/FinDeSesion.h"
#include "shell/start/FormPrincipal.h"

#include <QApplication>
#include <QDir>
#include <QEventLoopLocker>

using namespace Qt::Literals::StringLiterals;

namespace {

bool hayCarpetaDeTrabajo()
{
    return ExisteFichero(Sesión().carpeta() + u"\\ClipArt\\escudo.avi"_s);
}

void avisaDeCota(const QString &cota)
{
    interlocutor().avisa(QApplication::activeWindow(), Interlocutor::Icono::Informacion,
                         Traduce(u"El mayor número permitido es "_s) + cota,
                         Traduce(u"Número demasiado grande"_s));
}

} // namespace

void presentaPrograma(const QString &version)
{
    QCoreApplication::setApplicationName(u"Numora"_s);
    QCoreApplication::setApplicationVersion(version);
    QGuiApplication::setDesktopFileName(u"arpa.home.numora"_s);
}

QString idiomaDeLinea(const QString &lineaDeOrdenes)
{
    if (!lineaDeOrdenes.contains(u"-i:"_s))
        return IdiomaPropio.toString();
    return lineaDeOrdenes.split(u' ').constLast().mid(3);
}

Tarea<bool> encuentraCarpetaDeTrabajo()
{
    constexpr int preguntas = 2;
    for (int i = 1; i <= preguntas && !hayCarpetaDeTrabajo(); ++i) {
        const QString respuesta = co_await interlocutor().preguntaTexto(
            nullptr, u"¿Dónde se encuentran los ficheros del sistema Numora?"_s,
            u"Carpeta de trabajo"_s);
        Sesión().ponCarpeta(respuesta);
    }
    co_return hayCarpetaDeTrabajo();
}

void preparaAplicacion()
{
    InstalaAvisoDeCota(avisaDeCota);
    Aspecto::aplica(static_cast<Aspecto::Tema>(Sesión().recuerda(u"Ventana/Tema"_s, 0).toInt()));
    // The desktop's word holds until the user has given one of their own.
    Aspecto::ponMovimientoReducido(
        Sesión().recuerda(u"Ventana/MovimientoReducido"_s, escritorioSinMovimiento()).toBool());
    Aspecto::ponPasosDeLetra(Sesión().recuerda(u"Ventana/Letra"_s, 0).toInt());
    QApplication::setWindowIcon(Icono(u"NUMORA"_s));
    instalaTextosDeQt();
}

Programa::Programa(const QString &lineaDeOrdenes, const Contenido &contenido,
                   const Entrada &entrada)
{
    m_tareas.lanza(Main(lineaDeOrdenes, contenido, entrada));
}

Programa::~Programa() = default;

/// The start routine: refuses a second instance, finds the working folder, takes the language,
/// loads the main window without showing it, shows the splash, and starts the big-number service.
Tarea<> Programa::Main(QString lineaDeOrdenes, Contenido contenido, Entrada entrada)
{
    // The box that closes is the last window: the program goes on as long as this is held, and
    // quits when it is let go and there is still no window.
    const QEventLoopLocker enMarcha;
    preparaAplicacion();
    if (entrada.oscuro)
        Aspecto::aplica(*entrada.oscuro ? Aspecto::Tema::Oscuro : Aspecto::Tema::Claro);
    m_instancia = std::make_unique<InstanciaUnica>(Sesión().carpetaDeAjustes() + u"/Numora.lock"_s);
    if (m_instancia->hayOtra()) {
        co_await interlocutor().avisaYEspera(nullptr, Interlocutor::Icono::Informacion,
                                             u"Ya hay abierta una sesión del sistema Numora"_s,
                                             u"En ejecución"_s);
        co_return;
    }
    const bool hallada = co_await encuentraCarpetaDeTrabajo();
    if (!hallada)
        co_return;

    Idioma() = idiomaDeLinea(lineaDeOrdenes);
    instalaTextosDeQt();
    QDir::setCurrent(rutaExistente(Sesión().carpeta()));
    ImgSiguiente() = Icono(u"SIGUIENTE"_s);
    ImgStop() = Icono(u"STOP"_s);

    m_principal = std::make_unique<FormPrincipal>(contenido);
    if (entrada.presentacion) {
        m_principal->muestraAcercaDe(/*presentacion*/ true);
        QCoreApplication::processEvents();
    } else {
        m_principal->show();
    }
    // From here on: to be told to end before the event loop runs, ends the program at once.
    m_fin = std::make_unique<FinDeSesion>(m_principal.get());
    evento(m_principal.get(), [] { IniciaBignum(Sesión().Precisión()); });
    if (!entrada.enlace.isEmpty())
        m_principal->llega(entrada.enlace);
}
