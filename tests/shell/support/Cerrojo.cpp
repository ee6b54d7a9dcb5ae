// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/InstanciaUnica.h"

#include <QThread>
#include <cstdio>

/// Holds the lock of a file in a process of its own until it is killed: cerrojo FILE.
int main(int argc, char *argv[])
{
    const InstanciaUnica suya(QString::fromLocal8Bit(argv[argc - 1]));
    std::puts(suya.hayOtra() ? "taken" : "held");
    std::fflush(stdout);
    QThread::sleep(300);
}
