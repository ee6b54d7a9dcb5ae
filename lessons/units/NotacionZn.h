#pragma once

#include <QString>
#include <cstdint>

/// A whole number ≥ 0 in subscript digits: 12 gives "₁₂".
QString subindice(std::int32_t n);
