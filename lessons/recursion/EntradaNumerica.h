#pragma once

#include "bignum/gateway/Moneda.h"

#include <QString>
#include <cstdint>
#include <optional>

/// The value of an expression of at most 922337203685477; nothing when it is no whole number. A
/// value above calls the notice of the bound. Throws what Evalua throws, and Desbordamiento below
/// the range of Moneda.
std::optional<Moneda> evaluaEntrada(const QString &expresion);

/// The modulus that a text stands for: a whole number from 1 on; nothing for another text. Throws
/// what `evaluaEntrada` throws, and Desbordamiento beyond 32 bits.
std::optional<std::int32_t> evaluaModulo(const QString &expresion);

/// A plain number, no expression, rounded to four decimals and then half to even. Throws
/// TipoNoCoincide for a text that is no number and Desbordamiento beyond 32 bits, both with
/// `nombre` in their detail.
std::int32_t enteroDeTexto(const QString &texto, const QString &nombre);
