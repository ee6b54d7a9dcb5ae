// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/shell/Hijo.h"

#include "bench/shell/Clics.h"
#include "numora/Lecciones.h"
#include "shell/core/run/Tareas.h"
#include "shell/core/system/InstanciaUnica.h"
#include "shell/frame/FormLeccion.h"
#include "shell/start/FormPrincipal.h"
#include "shell/start/Main.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <memory>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

using Reloj = std::chrono::steady_clock;

double milisegundosDesde(Reloj::time_point inicio)
{
    return std::chrono::duration<double, std::milli>(Reloj::now() - inicio).count();
}

long memoriaResidente()
{
    QFile estado(QStringLiteral("/proc/self/statm"));
    if (!estado.open(QIODevice::ReadOnly))
        return 0;
    return estado.readAll().split(' ').value(1).toLong() * (sysconf(_SC_PAGESIZE) / 1024);
}

void imprime(double numero)
{
    QTextStream(stdout) << numero << Qt::endl;
}

/// Ends the process when a top-level window has painted for the first time.
class HastaPintar : public QObject
{
public:
    bool eventFilter(QObject *objeto, QEvent *suceso) override
    {
        auto *ventana = qobject_cast<QWidget *>(objeto);
        if (suceso->type() != QEvent::Paint || !ventana || !ventana->isWindow())
            return false;
        imprime(static_cast<double>(memoriaResidente()));
        _exit(0);
    }
};

void sirveEventosDurante(std::chrono::milliseconds tiempo)
{
    const auto fin = Reloj::now() + tiempo;
    while (Reloj::now() < fin)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
}

/// The program with its main window open and at rest: the logo has played.
std::unique_ptr<Programa> programa()
{
    auto enMarcha = std::make_unique<Programa>(QString(), contenidoDelPrograma());
    enMarcha->principal()->show();
    QTimer tictac; // wakes the loop where nothing else happens
    tictac.start(20ms);
    sirveEventosDurante(7s);
    return enMarcha;
}

/// The milliseconds from the choice of a lesson to its first picture on screen; closes it then.
double abreYCierra(FormPrincipal &principal, int fila)
{
    const auto inicio = Reloj::now();
    FormLeccion *leccion = principal.abreLeccion(fila);
    QCoreApplication::processEvents();
    const double tiempo = milisegundosDesde(inicio);
    leccion->cierra();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return tiempo;
}

} // namespace

int hijo::desnudo(int argc, char *argv[])
{
    QApplication aplicacion(argc, argv);
    HastaPintar espera;
    aplicacion.installEventFilter(&espera);
    QWidget ventana;
    ventana.show();
    return QApplication::exec();
}

int hijo::presentacion(int argc, char *argv[])
{
    QApplication aplicacion(argc, argv);
    HastaPintar espera;
    aplicacion.installEventFilter(&espera);
    const Programa enMarcha(QString(), contenidoDelPrograma());
    return QApplication::exec();
}

int hijo::lecciones(int argc, char *argv[])
{
    QApplication aplicacion(argc, argv);
    const auto enMarcha = programa();
    double peor = 0;
    for (int fila = FormPrincipal::FilaPracticas; fila < 9; ++fila) {
        abreYCierra(*enMarcha->principal(), fila); // warms it up
        std::array<double, 5> tiempos{};
        for (double &tiempo : tiempos)
            tiempo = abreYCierra(*enMarcha->principal(), fila);
        std::sort(tiempos.begin(), tiempos.end());
        peor = std::max(peor, tiempos[tiempos.size() / 2]);
    }
    imprime(peor);
    return 0;
}

int hijo::memoria(int argc, char *argv[])
{
    QApplication aplicacion(argc, argv);
    const auto enMarcha = programa();
    for (int fila = FormPrincipal::FilaPracticas; fila < 9; ++fila)
        enMarcha->principal()->abreLeccion(fila);
    QCoreApplication::processEvents();
    imprime(static_cast<double>(memoriaResidente()));
    return 0;
}

int hijo::clics(int argc, char *argv[])
{
    QApplication aplicacion(argc, argv);
    const auto enMarcha = programa();
    mideClics(*enMarcha->principal());
    return 0;
}

/// Steps of nanoseconds, then of a tenth of a millisecond, as when numbers grow.
static Tarea<> trabaja(Billete billete)
{
    const auto inicio = Reloj::now();
    volatile double x = 1;
    while (milisegundosDesde(inicio) < 3000) {
        const int trabajo = milisegundosDesde(inicio) < 1500 ? 1 : 30'000;
        for (int i = 0; i < trabajo; ++i)
            x = x * 1.0000001;
        co_await billete.ceder();
    }
}

int hijo::atencion(int argc, char *argv[])
{
    QApplication aplicacion(argc, argv);
    std::atomic<double> peor = 0;
    std::atomic<bool> fin = false;
    QObject destino;
    std::thread otro([&] {
        while (!fin) {
            const auto pedido = Reloj::now();
            QMetaObject::invokeMethod(
                &destino, [&, pedido] { peor = std::max(peor.load(), milisegundosDesde(pedido)); },
                Qt::QueuedConnection);
            std::this_thread::sleep_for(3ms);
        }
    });
    Tareas tareas([](const std::exception_ptr &) {});
    tareas.lanza(trabaja(tareas.billete()));
    while (!tareas.vacias())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    fin = true;
    otro.join();
    imprime(peor);
    return 0;
}
