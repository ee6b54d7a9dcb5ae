#pragma once

#include "shell/core/Corrida.h"

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
        SinNumero ///< what stands there does not begin with a digit: "Error", blank, negative
    };

    /// Two hundred sums, more than which nobody reads.
    static constexpr int NumerosGuardados = 201;

    /// Starts from the value of an expression, one yield a step, until a palindrome stands there;
    /// the flag stops it. No number of steps is too many, but the big-number service ends at 24 575
    /// digits. Throws what Evalua throws.
    Fin busca(const QString &inicio, Corrida &corrida);

    const QString &actual() const { return m_actual; }
    /// The numbers of the first sums, each with what it became: numeros()[k] plus its reverse is
    /// numeros()[k + 1]. At most NumerosGuardados.
    const QStringList &numeros() const { return m_numeros; }
    qint64 numSumas() const { return m_numSumas; }

private:
    QString m_actual;
    QStringList m_numeros;
    qint64 m_numSumas = 0;
};
