#pragma once

#include "bignum/gateway/Moneda.h"

#include <QString>

/// The value of a field of this lesson: that of EvaluaMoneda where it is a whole number; 0 for a
/// fraction, as for any text that is no number. Throws what EvaluaMoneda throws.
Moneda EvaluaEntero(const QString &expresion, Moneda maximo);
