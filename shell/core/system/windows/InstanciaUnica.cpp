// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/InstanciaUnica.h"

#include "shell/core/system/windows/Descriptor.h"

#include <QDir>
#include <QFileInfo>

struct InstanciaUnica::Cerrojo
{
    Descriptor archivo;
};

InstanciaUnica::InstanciaUnica(const QString &archivo)
{
    QDir().mkpath(QFileInfo(archivo).absolutePath());
    m_cerrojo = std::make_unique<Cerrojo>(Cerrojo{Descriptor(::CreateFileW(
        QDir::toNativeSeparators(archivo).toStdWString().c_str(), GENERIC_READ | GENERIC_WRITE,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
        FILE_ATTRIBUTE_NORMAL, nullptr))});
    OVERLAPPED lugar = {};
    m_hayOtra =
        m_cerrojo->archivo.abierto() &&
        !::LockFileEx(m_cerrojo->archivo.asa(), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY,
                      0, 1, 0, &lugar) &&
        (::GetLastError() == ERROR_LOCK_VIOLATION || ::GetLastError() == ERROR_IO_PENDING);
}

InstanciaUnica::~InstanciaUnica() = default;
