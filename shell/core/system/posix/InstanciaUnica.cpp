// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/InstanciaUnica.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

struct InstanciaUnica::Cerrojo
{
    int descriptor = -1;
};

InstanciaUnica::InstanciaUnica(const QString &archivo) : m_cerrojo(std::make_unique<Cerrojo>())
{
    QDir().mkpath(QFileInfo(archivo).absolutePath());
    // Close-on-exec: a calculator started from the toolbar must not inherit the lock.
    const int descriptor =
        ::open(QFile::encodeName(archivo).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    m_hayOtra =
        descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    m_cerrojo->descriptor = descriptor;
}

InstanciaUnica::~InstanciaUnica()
{
    if (m_cerrojo->descriptor >= 0)
        ::close(m_cerrojo->descriptor);
}
