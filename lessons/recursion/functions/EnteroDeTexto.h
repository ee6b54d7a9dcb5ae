#pragma once

#include <QString>
#include <cstdint>

/// A plain number, no expression, rounded to four decimals and then half to even. Throws
/// TipoNoCoincide for a text that is no number and Desbordamiento beyond 32 bits, both with
/// `nombre` in their detail.
std::int32_t enteroDeTexto(const QString &texto, const QString &nombre);
