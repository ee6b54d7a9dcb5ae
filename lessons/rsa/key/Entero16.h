#pragma once

#include <QString>
#include <cstdint>

/// The decimal value of a text as a 16-bit integer, rounded half to even; 0 when it is not numeric.
/// Throws Desbordamiento beyond 16 bits.
std::int16_t aEntero16(const QString &texto);
