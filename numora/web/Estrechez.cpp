// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/web/Estrechez.h"

#include "shell/start/FormPrincipal.h"

#include <QEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The list and the narrowest lesson, in pixels.
constexpr int AnchoParaAmbos = 640;

} // namespace

Estrechez::Estrechez(FormPrincipal *principal) : QObject(principal), m_principal(principal)
{
    m_principal->installEventFilter(this);
    acomoda();
}

bool Estrechez::eventFilter(QObject *objeto, QEvent *suceso)
{
    if (suceso->type() == QEvent::Resize)
        acomoda();
    return QObject::eventFilter(objeto, suceso);
}

void Estrechez::acomoda()
{
    m_principal->findChild<QWidget *>(u"PanelMenu"_s)
        ->setVisible(m_principal->width() >= AnchoParaAmbos);
}
