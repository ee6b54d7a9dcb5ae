// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/Anuncio.h"

#include <QAccessible>
#include <QWidget>
#include <initializer_list>

void anuncia(QWidget *control)
{
    for (const QAccessible::Event suceso :
         {QAccessible::NameChanged, QAccessible::DescriptionChanged}) {
        QAccessibleEvent aviso(control, suceso);
        QAccessible::updateAccessibility(&aviso);
    }
}
