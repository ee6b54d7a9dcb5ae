// SPDX-License-Identifier: GPL-3.0-or-later
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
    double unsievedFactor;
};

constexpr std::array<Row, 16> kTable{{
    {50, 40, 1, 5, 0, 6, 0.5},
    {66, 57, 1, 6, 0, 9, 0.55},
    {83, 116, 1, 18, 0, 12, 0.7},
    {100, 170, 1, 20, 0, 31, 0.95},
    {116, 280, 1, 30, 0, 55, 1.4},
    {132, 700, 1, 39, 0, 90, 1.3},
    {149, 900, 1, 40, 0, 80, 2.5},
    {167, 1700, 1, 40, 0, 110, 2.5},
    {184, 2700, 1, 50, 0, 230, 2.5},
    {200, 5250, 1, 55, 0, 400, 2.5},
    {215, 8500, 1, 80, 0, 450, 2.5},
    {240, 17500, 2, 80, 0, 450, 2.5},
    {257, 30000, 2, 100, 0, 450, 2.5},
    {258, 28000, 3, 60, 1.8, 450, 1.6}, // from here on two large primes pay, with a smaller base
    {266, 36000, 3, 60, 1.8, 450, 1.6},
    {275, 48000, 4, 60, 1.8, 450, 1.6}, // not measured, but continued
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
            value(&Row::unsievedFactor)};
}

} // namespace bignum::sieve
