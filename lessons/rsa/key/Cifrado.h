// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QHash>
#include <QString>
#include <QStringList>

/// Modular powers with one exponent and one modulus. A text has few different characters, and with
/// one character a block no more than 256 different blocks: each is computed once.
class Potencias
{
public:
    Potencias(const QString &exponente, const QString &modulo);

    /// The power of a number; "Error" when the result does not begin with a digit.
    QString de(const QString &base);

private:
    QString m_exponente, m_modulo;
    QHash<QString, QString> m_conocidas;
};

/// The text encrypted in packets of `r` characters, a number a block; "Error" for a block that
/// fails. Yields once a block and is short when the run was stopped. Throws what PaquetesDeTexto
/// throws.
Tarea<QStringList> codifica(QString texto, int r, Potencias potencias, Billete billete);

/// The text that the blocks give when decrypted; blocks that fail are left out. Yields once a block
/// and is short when the run was stopped. Throws MemoriaInsuficiente when the text would have more
/// than MaximoDescodificado characters.
Tarea<QString> descodifica(QStringList bloques, Potencias potencias, Billete billete);
