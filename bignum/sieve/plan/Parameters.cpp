#include "bignum/sieve/plan/Parameters.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace bignum::sieve {

namespace {

struct Row
{
    double bits;
    double baseSize;
    double blocks;
    double largePrimeFactor;
    double cofactorExponent;
    double firstSieved;
    double smallPrimesShare;
};

constexpr std::array<Row, 11> kTable{{
    {50, 50, 1, 20, 0, 5, 0.7},
    {80, 100, 1, 30, 0, 11, 0.7},
    {100, 180, 1, 40, 0, 20, 0.7},
    {130, 550, 1, 50, 0, 50, 0.7},
    {165, 1500, 2, 70, 0, 100, 0.7},
    {181, 2400, 4, 70, 0, 130, 0.7},
    {200, 4500, 6, 90, 0, 200, 0.7},
    {215, 8000, 8, 100, 0, 256, 0.7},
    {232, 14000, 10, 120, 0, 256, 0.7},
    {248, 26000, 12, 120, 0, 256, 0.7},
    {265, 48000, 14, 120, 0, 256, 0.7},
}};

/// Between the values of two rows: geometrically, since all grow with the size of n in this way.
double between(double low, double high, double share)
{
    return low == high || low == 0 ? low : low * std::pow(high / low, share);
}

} // namespace

Parameters parametersFor(std::size_t bits)
{
    const double at =
        std::clamp(static_cast<double>(bits), kTable.front().bits, kTable.back().bits);
    const Row *high = kTable.data() + 1;
    while (high->bits < at)
        ++high;
    const Row *const low = high - 1;
    const double share = (at - low->bits) / (high->bits - low->bits);
    const auto value = [&](double Row::*field) {
        return between(low->*field, high->*field, share);
    };
    return {static_cast<std::size_t>(value(&Row::baseSize)),
            static_cast<std::uint32_t>(std::lround(value(&Row::blocks))),
            value(&Row::largePrimeFactor),
            high->cofactorExponent,
            static_cast<std::uint32_t>(value(&Row::firstSieved)),
            value(&Row::smallPrimesShare)};
}

} // namespace bignum::sieve
