// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The digits of a number as a step shows them: one of more than `masCifras` by its ends and how
/// many it has, any other with its thousands parted as in the grid beside it (formatoEntero).
QString numeroEnPantalla(QStringView digitos, qsizetype masCifras = 40);

/// A sentence with every whole number in it as above; decimals, and digits that end a name, stay.
QString conNumerosEnPantalla(const QString &frase);
