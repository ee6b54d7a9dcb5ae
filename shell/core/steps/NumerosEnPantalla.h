// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The digits of a number as a step shows them: one of more than `masCifras` by its ends and how
/// many it has, any other in groups of three from five digits on, between which a line never
/// breaks.
QString numeroEnPantalla(QStringView digitos, qsizetype masCifras = 40);

/// A sentence with every number in it as above.
QString conNumerosEnPantalla(const QString &frase);
