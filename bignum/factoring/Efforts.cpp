// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/Efforts.h"

#include "bignum/sieve/Cores.h"

namespace bignum {

std::uint64_t rhoStepsFor(std::size_t digits)
{
    if (digits < 25)
        return 1U << 10;
    if (digits < 30)
        return 1U << 11;
    return digits < 35 ? 1U << 12 : 1U << 14;
}

std::vector<CurveLevel> curvesFor(std::size_t digits)
{
    // A curve to 500, 2000, 11000 and 50000 takes 1, 2, 9 and 33 ms at 65 digits.
    if (digits <= 41)
        return {};
    if (digits <= 46)
        return {{500, 2}};
    if (digits <= 49)
        return {{500, 5}};
    if (digits <= 52)
        return {{500, 6}, {2000, 2}};
    if (digits <= 56)
        return {{500, 8}, {2000, 10}};
    if (digits <= 59)
        return {{500, 10}, {2000, 25}};
    if (digits <= 62)
        return {{500, 10}, {2000, 25}, {11000, 6}};
    if (digits <= 65)
        return {{500, 10}, {2000, 25}, {11000, 22}};
    if (digits <= 68)
        return {{500, 10}, {2000, 25}, {11000, 50}};
    if (digits <= 71)
        return {{500, 10}, {2000, 25}, {11000, 85}};
    if (digits <= 74)
        return {{500, 10}, {2000, 25}, {11000, 90}, {50000, 25}};
    if (digits <= 77)
        return {{500, 10}, {2000, 25}, {11000, 90}, {50000, 60}};
    if (digits <= kSieveDigits)
        return {{500, 10}, {2000, 25}, {11000, 90}, {50000, 140}};
    return {{500, 15}, {2000, 25}, {11000, 90}, {50000, 250}, {250000, 450}, {1000000, 100000}};
}

unsigned sieveThreadsFor(std::size_t digits)
{
    constexpr std::size_t leastDigits = 36; // a thread costs some 50 us, such a sieve 5 ms
    return digits < leastDigits ? 1 : availableCores();
}

} // namespace bignum
