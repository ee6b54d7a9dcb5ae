#pragma once

#include <QString>
#include <optional>

/// The whole number of any size that an expression stands for, in decimal digits with its sign;
/// nothing for any other text. Throws what Evalua throws.
std::optional<QString> evaluaEnteroGrande(const QString &expresion);
