// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/Veredicto.h"

#include "shell/look/Aspecto.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

void muestraVeredicto(QLabel *rotulo, bool bien, const QString &texto)
{
    QPalette colores = rotulo->palette();
    colores.setColor(QPalette::WindowText, bien ? Aspecto::exito() : Aspecto::error());
    rotulo->setPalette(colores);
    rotulo->setText((bien ? u"✓ "_s : u"✗ "_s) + texto);
}

void muestraNeutro(QLabel *rotulo, const QString &texto)
{
    rotulo->setPalette({});
    rotulo->setText(texto);
}

void rechaza(QLineEdit *campo, QLabel *rotulo, const QString &motivo)
{
    muestraVeredicto(rotulo, false, motivo);
    campo->setFocus();
    campo->selectAll();
}
