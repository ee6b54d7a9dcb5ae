#pragma once

#include <QHash>
#include <QString>

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
