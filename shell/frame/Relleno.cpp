// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/Relleno.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QSpinBox>

namespace {

const QWidget *enRelleno = nullptr;

bool escribe(QAbstractItemView &rejilla, const QString &valor)
{
    const QString casilla = valor.section(u':', 0, 0);
    const QModelIndex indice = rejilla.model()->index(casilla.section(u',', 0, 0).toInt(),
                                                      casilla.section(u',', 1).toInt());
    if (!indice.isValid())
        return false;
    rejilla.setCurrentIndex(indice);
    if (casilla == valor)
        return true;
    return indice.flags() & Qt::ItemIsEditable &&
           rejilla.model()->setData(indice, valor.section(u':', 1), Qt::EditRole);
}

bool escribe(QLineEdit &campo, const QString &valor)
{
    if (campo.isReadOnly() || valor.size() > campo.maxLength())
        return false;
    campo.setText(valor);
    return true;
}

bool escribe(QPlainTextEdit &texto, const QString &valor)
{
    if (texto.isReadOnly())
        return false;
    texto.setPlainText(valor);
    return true;
}

bool escribe(QSpinBox &numero, const QString &valor)
{
    bool bien = false;
    const int leido = valor.toInt(&bien);
    if (!bien || leido < numero.minimum() || leido > numero.maximum())
        return false;
    numero.setValue(leido);
    return true;
}

/// By a click, as which the windows hear it; a button that starts something is not one to mark.
bool marca(QAbstractButton &boton, const QString &valor)
{
    if (!boton.isCheckable() || (valor != u"0" && valor != u"1"))
        return false;
    if (boton.isChecked() != (valor == u"1"))
        boton.click();
    return boton.isChecked() == (valor == u"1");
}

} // namespace

bool rellena(QWidget &control, const QString &valor)
{
    if (!control.isEnabled())
        return false;
    const QScopedValueRollback<const QWidget *> este(enRelleno, &control);
    if (auto *lista = qobject_cast<QComboBox *>(&control)) {
        lista->setCurrentText(valor);
        return lista->currentText() == valor;
    }
    if (auto *campo = qobject_cast<QLineEdit *>(&control))
        return escribe(*campo, valor);
    if (auto *texto = qobject_cast<QPlainTextEdit *>(&control))
        return escribe(*texto, valor);
    if (auto *numero = qobject_cast<QSpinBox *>(&control))
        return escribe(*numero, valor);
    if (auto *boton = qobject_cast<QAbstractButton *>(&control))
        return marca(*boton, valor);
    auto *rejilla = qobject_cast<QAbstractItemView *>(&control);
    return rejilla && escribe(*rejilla, valor);
}

bool seRellena(const QWidget *control)
{
    return enRelleno == control;
}
