// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/SenalesDeFin.h"

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array senales{SIGTERM, SIGHUP, SIGINT};

/// Where the handler writes: nothing but a byte into a pipe is allowed in there.
volatile std::sig_atomic_t salida = -1;

void anota(int)
{
    const char byte = 0;
    // A full pipe has been told already.
    [[maybe_unused]] const auto escritos = ::write(salida, &byte, 1);
}

} // namespace

struct SenalesDeFin::Oidos
{
    std::array<int, 2> tubo{-1, -1};
    std::array<struct sigaction, senales.size()> deAntes{};
    std::unique_ptr<QSocketNotifier> lector;
};

SenalesDeFin::SenalesDeFin(QObject *padre) : QObject(padre), m_oidos(std::make_unique<Oidos>())
{
    if (::pipe2(m_oidos->tubo.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the system ends the program by itself then
    salida = m_oidos->tubo[1];
    struct sigaction accion = {};
    accion.sa_handler = anota;
    // Whoever asks twice, because the program is busy, gets what the system does by itself.
    accion.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (std::size_t i = 0; i < senales.size(); ++i)
        ::sigaction(senales[i], &accion, &m_oidos->deAntes[i]);
    m_oidos->lector = std::make_unique<QSocketNotifier>(m_oidos->tubo[0], QSocketNotifier::Read);
    connect(m_oidos->lector.get(), &QSocketNotifier::activated, this, [this] {
        m_oidos->lector->setEnabled(false);
        Q_EMIT oida();
    });
}

SenalesDeFin::~SenalesDeFin()
{
    if (m_oidos->tubo[0] < 0)
        return;
    for (std::size_t i = 0; i < senales.size(); ++i)
        ::sigaction(senales[i], &m_oidos->deAntes[i], nullptr);
    m_oidos->lector.reset();
    for (const int extremo : m_oidos->tubo)
        ::close(extremo);
}
