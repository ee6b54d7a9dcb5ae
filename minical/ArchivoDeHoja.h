// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/HojaGuardada.h"

#include <QByteArray>
#include <variant>

// The file of a sheet: lines of UTF-8 text, fields between tabs. docs/sheet.md describes it.

/// The largest file that is written and read, in bytes: 2475 results of 24 575 digits fit beside
/// short expressions, but not beside as many numbers that were typed whole.
inline constexpr qint64 TamanoMaximoDeHoja = 64LL * 1024 * 1024;

/// The widest column that a file may ask for, in characters.
inline constexpr int AnchoMaximoDeColumna = 400;

/// Why a file is not taken.
struct FalloDeHoja
{
    enum class Motivo {
        NoEsUnaHoja,      ///< something else altogether
        VersionPosterior, ///< written by a program that knows more
        NoEsTexto,        ///< a line that is not UTF-8
        LineaIncorrecta,  ///< a line that no sheet has
        CeldaRepetida,    ///< a cell that stands there twice
        Cortado           ///< the end is missing
    };

    Motivo motivo;
    int linea = 0; ///< counted from 1

    bool operator==(const FalloDeHoja &) const = default;
};

QByteArray escribeHoja(const HojaGuardada &hoja);

std::variant<HojaGuardada, FalloDeHoja> leeHoja(const QByteArray &bytes);
