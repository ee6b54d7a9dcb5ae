// SPDX-License-Identifier: GPL-3.0-or-later

// A program of Qt that shows an empty window: what starting the real one is compared with.

#include <QApplication>
#include <QWidget>
#include <emscripten/bind.h>

namespace {

bool lista()
{
    return true;
}

} // namespace

EMSCRIPTEN_BINDINGS(numora_empty)
{
    emscripten::function("lista", &lista);
}

int main(int argc, char *argv[])
{
    static int cuenta = argc;
    new QApplication(cuenta, argv);
    (new QWidget)->showMaximized();
    return QApplication::exec();
}
