#pragma once

#include <QString>
#include <cstdint>
#include <optional>

/// The whole number that an expression stands for, when it lies in minimo..maximo. A value above
/// calls the notice of the bound; nothing for it, for a smaller one and for any other text. Throws
/// what Evalua throws.
std::optional<std::int32_t> evaluaEnteroAcotado(const QString &expresion, std::int32_t minimo,
                                                std::int32_t maximo);
