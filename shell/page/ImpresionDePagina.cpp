// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/page/ImpresionDePagina.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/Interlocutor.h"
#include "shell/page/NavegadorPagina.h"

#include <QPrinter>

using namespace Qt::Literals::StringLiterals;

Tarea<> imprimePagina(NavegadorPagina *pagina)
{
    const auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
    impresora->setDocName(pagina->documentTitle());
    const bool elegida =
        co_await interlocutor().eligeImpresora(pagina, impresora, Traduce(u"Imprimir la página"_s));
    if (!elegida)
        co_return;
    pagina->paraPapel()->print(impresora.get());
    if (impresora->printerState() == QPrinter::Error)
        interlocutor().avisa(pagina, Interlocutor::Icono::Exclamacion,
                             Traduce(u"No se puede imprimir en esa impresora."_s),
                             Traduce(u"Imprimir la página"_s));
}
