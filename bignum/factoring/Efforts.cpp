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
    if (digits <= 38)
        return {};
    if (digits <= 44)
        return {{500, 2}};
    if (digits <= 49)
        return {{500, 6}};
    if (digits <= 54)
        return {{500, 10}, {2000, 5}};
    if (digits <= 59)
        return {{500, 10}, {2000, 20}};
    if (digits <= 64)
        return {{500, 10}, {2000, 25}, {11000, 15}};
    if (digits <= 67)
        return {{500, 10}, {2000, 25}, {11000, 70}};
    if (digits <= kSieveDigits)
        return {{500, 10}, {2000, 25}, {11000, 90}, {50000, 120}};
    return {{500, 15}, {2000, 25}, {11000, 90}, {50000, 250}, {250000, 450}, {1000000, 100000}};
}

unsigned sieveThreadsFor(std::size_t digits)
{
    constexpr std::size_t leastDigits = 42; // a thread costs some 50 us, such a sieve some 20 ms
    return digits < leastDigits ? 1 : availableCores();
}

} // namespace bignum
