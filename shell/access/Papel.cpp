// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/Papel.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace {

constexpr auto Propiedad = "papelAccesible";

/// Nothing of a widget whose role was never set: Qt looks further.
QAccessibleInterface *interfazConPapel(const QString &, QObject *objeto)
{
    const QVariant papel = objeto->property(Propiedad);
    if (!papel.isValid() || !objeto->isWidgetType())
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget *>(objeto),
                                 static_cast<QAccessible::Role>(papel.toInt()));
}

} // namespace

void ponPapel(QWidget *control, QAccessible::Role papel)
{
    static const bool instalada = [] {
        QAccessible::installFactory(interfazConPapel);
        return true;
    }();
    Q_UNUSED(instalada)
    control->setProperty(Propiedad, static_cast<int>(papel));
}
