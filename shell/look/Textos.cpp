// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Textos.h"

#include "shell/core/ModGlobal.h"
#include "shell/look/RotulosEnteros.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QWidget>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The properties that hold texts of the interface, in whatever class has them.
constexpr std::array propiedades{"windowTitle", "toolTip",         "statusTip",
                                 "whatsThis",   "accessibleName",  "accessibleDescription",
                                 "title",       "placeholderText", "specialValueText"};

void traducePropiedad(QObject *objeto, const char *propiedad)
{
    const QString texto = objeto->property(propiedad).toString();
    if (texto.isEmpty())
        return;
    const QString traducido = Traduce(texto);
    if (traducido != texto)
        objeto->setProperty(propiedad, traducido);
}

void traduceObjeto(QObject *objeto)
{
    for (const char *propiedad : propiedades) {
        if (objeto->metaObject()->indexOfProperty(propiedad) >= 0)
            traducePropiedad(objeto, propiedad);
    }
    const bool rotulo = qobject_cast<QLabel *>(objeto) || qobject_cast<QAbstractButton *>(objeto) ||
                        qobject_cast<QAction *>(objeto);
    if (rotulo)
        traducePropiedad(objeto, "text");
    if (auto *fichas = qobject_cast<QTabWidget *>(objeto)) {
        for (int i = 0; i < fichas->count(); ++i)
            fichas->setTabText(i, Traduce(fichas->tabText(i)));
    }
    if (auto *lista = qobject_cast<QComboBox *>(objeto)) {
        for (int i = 0; i < lista->count(); ++i)
            lista->setItemText(i, Traduce(lista->itemText(i)));
    }
}

} // namespace

void traduceVentana(QWidget *ventana)
{
    traduceObjeto(ventana);
    const auto objetos = ventana->findChildren<QObject *>();
    for (QObject *objeto : objetos)
        traduceObjeto(objeto);
    // Whichever language is the longer: labels that wrap are as tall as their text.
    for (QLabel *rotulo : ventana->findChildren<QLabel *>()) {
        if (rotulo->wordWrap() && rotulo->parentWidget())
            mantieneEntero(rotulo);
    }
    for (QLineEdit *campo : ventana->findChildren<QLineEdit *>()) {
        const bool suelto = !campo->objectName().startsWith(u"qt_") &&
                            !campo->parentWidget()->inherits("QComboBox");
        if (suelto && campo->minimumWidth() == 0)
            mantieneEntero(campo);
    }
    for (QComboBox *lista : ventana->findChildren<QComboBox *>())
        mantieneEntera(lista);
}
