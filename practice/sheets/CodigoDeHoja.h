// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <variant>

/// What a sheet is made of. Either one lesson at one level, whose code is short, or kinds that were
/// chosen one by one.
struct EncargoDeHoja
{
    struct Parte
    {
        QString clave;
        int nivel = 1;
        friend bool operator==(const Parte &, const Parte &) = default;
    };
    QString leccion{};     ///< of a short one; empty for the whole course
    int nivel = 0;         ///< of a short one; 0: the three levels in turn
    QList<Parte> partes{}; ///< of a long one; the exercises are taken from them in turn
    int cuantos = 10;      ///< how many exercises, 1 … MaximoDeEjercicios
    int serie = 0;         ///< which of the sheets of this kind, 0 … SeriesDeHoja − 1
    friend bool operator==(const EncargoDeHoja &, const EncargoDeHoja &) = default;

    bool largo() const { return !partes.isEmpty(); }
};

inline constexpr int MaximoDeEjercicios = 32;
inline constexpr int MaximoDePartes = 20;
inline constexpr int SeriesDeHoja = 1 << 15;

/// The code of a sheet, "MD7-4K2Q": a version, what it is made of, and a letter that checks the
/// others; without I, L, O and U. (The check is a Reed-Solomon symbol: it finds every wrong letter
/// and every two that were exchanged less than 31 places apart.) The kinds must be of the bank.
QString codigoDeHoja(const EncargoDeHoja &encargo);

/// What a code asks for, or a sentence about why it is none. Case, blanks and hyphens do not
/// matter, and neither does O for 0 or I and L for 1.
std::variant<EncargoDeHoja, QString> leeCodigoDeHoja(const QString &codigo);
