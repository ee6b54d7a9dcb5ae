// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <utility>

/// One named value of the sheet.
class clsVariable
{
public:
    clsVariable() = default;
    clsVariable(QString nombre, QString valor)
        : m_nombre(std::move(nombre)), m_valor(std::move(valor))
    {
    }

    /// The name of the cell.
    const QString &Nombre() const { return m_nombre; }
    void ponNombre(const QString &nombre) { m_nombre = nombre; }

    /// The result of the cell in parentheses.
    const QString &Valor() const { return m_valor; }
    void ponValor(const QString &valor) { m_valor = valor; }

private:
    QString m_nombre;
    QString m_valor;
};
