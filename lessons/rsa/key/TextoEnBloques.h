// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// The longest text that the windows encrypt, in characters, and the longest that a decryption may
/// give: a few hostile blocks under a large key would otherwise fill the memory.
inline constexpr qsizetype MaximoDeCaracteres = 1'000'000;
inline constexpr qsizetype MaximoDescodificado = 2 * MaximoDeCaracteres;

/// The numbers that a text is encrypted as, one after the other: `r` characters a number, three
/// decimal digits a character (its Windows-1252 code, "000" to "255"), after spaces have filled up
/// the last packet.
class PaquetesDeTexto
{
public:
    /// Throws DivisionPorCero for r = 0, ArgumentoNoValido for a negative r and for a character
    /// outside Windows-1252, which it names.
    PaquetesDeTexto(const QString &texto, int r);

    qsizetype cuantos() const { return m_bytes.size() / m_r; }
    bool hay() const { return m_inicio < m_bytes.size(); }
    QString siguiente();

private:
    QByteArray m_bytes;
    qsizetype m_r;
    qsizetype m_inicio = 0;
};

/// The characters of a decrypted block number: its digits in groups of three from the right, of
/// each group the low 8 bits. What follows a NUL is not part of the number.
QString NumeroATexto(const QString &numero);

/// Why a text cannot travel: a sentence for the user that names the first character outside
/// Windows-1252 and its place. Nothing when all of them are in it.
std::optional<QString> caracterInadmisible(const QString &texto);
