#pragma once

#include <QString>
#include <cstdint>
#include <optional>

/// The whole number that an expression of at most `mayor` stands for; nothing for any other text,
/// and for a number that 32 bits do not hold. A value above calls the notice of the bound. Throws
/// what Evalua throws.
std::optional<std::int32_t> evaluaPequeno(const QString &expresion, std::int32_t mayor);

/// The whole number of any size that an expression stands for, in decimal digits with its sign;
/// nothing for any other text. Throws what Evalua throws.
std::optional<QString> evaluaGrande(const QString &expresion);
