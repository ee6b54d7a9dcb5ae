// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/Escenario.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Relleno.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

void abreTema(QTabBar &temas, const QString &clave)
{
    for (int i = 0; i < temas.count(); ++i) {
        if (temas.tabData(i).toString() == clave)
            temas.setCurrentIndex(i);
    }
}

/// That of the topic in front, where several have a control of that name.
QWidget *buscado(const QString &nombre, const QWidget &ventana)
{
    const auto todos = ventana.findChildren<QWidget *>(nombre);
    const auto visible = std::ranges::find_if(todos, &QWidget::isVisible);
    return visible != todos.end() ? *visible : todos.value(0);
}

} // namespace

void daGesto(const Gesto &gesto, const QWidget &ventana)
{
    QWidget *control = buscado(gesto.control, ventana);
    if (gesto.valor.endsWith(u'\n')) {
        daGesto({gesto.control, gesto.valor.chopped(1)}, ventana);
        QKeyEvent intro(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(control, &intro);
    } else if (auto *tira = qobject_cast<QTabBar *>(control))
        abreTema(*tira, gesto.valor);
    else if (auto *boton = qobject_cast<QAbstractButton *>(control))
        boton->click();
    else if (auto *pestanas = qobject_cast<QTabWidget *>(control))
        pestanas->setCurrentIndex(gesto.valor.toInt());
    else if (!control || !(rellena(*control, gesto.valor) ||
                           rellena(*control, Traduce(gesto.valor)))) // as a list shows it
        qWarning("no such control in the scene: %s", qPrintable(gesto.control));
}

bool hayCorridas(const FormLeccion &leccion)
{
    const auto corridas = leccion.findChildren<BotonDeCorrida *>();
    return std::any_of(corridas.begin(), corridas.end(),
                       [](const BotonDeCorrida *corrida) { return corrida->enMarcha(); });
}
