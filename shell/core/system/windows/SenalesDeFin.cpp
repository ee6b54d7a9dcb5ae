// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/SenalesDeFin.h"

#include <QMetaObject>
#include <atomic>
#include <windows.h>

namespace {

/// Who hears; the system calls from a thread of its own.
std::atomic<SenalesDeFin *> oyente = nullptr;

/// The end of the desktop's session comes to the windows, which Qt tells of; this is the console's.
BOOL WINAPI anota(DWORD)
{
    // Whoever asks twice, because the program is busy, gets what the system does by itself.
    SenalesDeFin *const quien = oyente.exchange(nullptr);
    return quien && QMetaObject::invokeMethod(quien, &SenalesDeFin::oida, Qt::QueuedConnection);
}

} // namespace

struct SenalesDeFin::Oidos
{
};

SenalesDeFin::SenalesDeFin(QObject *padre) : QObject(padre), m_oidos(std::make_unique<Oidos>())
{
    oyente = this;
    ::SetConsoleCtrlHandler(anota, TRUE);
}

SenalesDeFin::~SenalesDeFin()
{
    ::SetConsoleCtrlHandler(anota, FALSE);
    oyente = nullptr;
}
