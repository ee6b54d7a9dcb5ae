// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QString>
#include <QStringList>

/// The characters of a text from the last to the first.
QString Inverso(const QString &texto);

/// The search for a palindrome by adding to a number the one that its digits give backwards.
class Capicua
{
public:
    enum class Fin {
        Hallado,
        Detenida,
        SinValor, ///< the start is no expression, or its value is too long to compute
        Negativo, ///< the value of the start begins with a sign
        DemasiadasCifras
    };

    /// Two hundred sums, more than which nobody reads.
    static constexpr int NumerosGuardados = 201;

    /// Starts from the value of an expression and goes on until a palindrome stands there; the
    /// ticket stops it. No number of steps is too many, but the big-number service ends at 24 575
    /// digits. Throws what Evalua throws.
    Tarea<Fin> busca(QString inicio, Billete billete);

    const QString &actual() const { return m_actual; }
    /// The numbers of the first sums, each with what it became: numeros()[k] plus its reverse is
    /// numeros()[k + 1]. At most NumerosGuardados.
    const QStringList &numeros() const { return m_numeros; }
    qint64 numSumas() const { return m_numSumas; }

private:
    Fin porqueNoEsNumero() const;

    QString m_actual;
    QStringList m_numeros;
    qint64 m_numSumas = 0;
};
