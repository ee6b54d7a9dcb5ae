// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/web/Puerta.h"

#include "shell/start/FormPrincipal.h"
#include "shell/start/Main.h"

#include <QCoreApplication>
#include <QEvent>
#include <QUrl>
#include <emscripten/bind.h>

using namespace Qt::Literals::StringLiterals;

namespace {

Programa *&abierto()
{
    static Programa *programa = nullptr;
    return programa;
}

} // namespace

void abrePuerta(Programa *programa)
{
    abierto() = programa;
}

FormPrincipal *principalDeLaPuerta()
{
    return abierto() ? abierto()->principal() : nullptr;
}

namespace {

/// The part behind "#" of the address.
void llega(const std::string &lugar)
{
    if (principalDeLaPuerta() && !lugar.empty())
        principalDeLaPuerta()->llega(QUrl(u"numora:"_s + QString::fromStdString(lugar)));
}

/// The page may be gone at any moment from now on.
void guardaLoPendiente()
{
    if (!principalDeLaPuerta())
        return;
    principalDeLaPuerta()->guardaLoPendiente();
    // Settings are written when the event loop comes to it, which it may not any more.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}

} // namespace

EMSCRIPTEN_BINDINGS(numora)
{
    emscripten::function("llega", &llega);
    emscripten::function("guardaLoPendiente", &guardaLoPendiente);
}
