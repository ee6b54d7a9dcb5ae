// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/plan/SmallModulus.h"

#include <utility>

namespace bignum::sieve {

namespace {

/// Shanks's method for a square a = x^2 modulo p = 2^twos·odd + 1.
std::uint32_t shanksRoot(std::uint32_t a, std::uint32_t p)
{
    std::uint32_t odd = p - 1;
    unsigned twos = 0;
    for (; odd % 2 == 0; odd /= 2)
        ++twos;
    std::uint32_t nonResidue = 2;
    while (powerModulo(nonResidue, (p - 1) / 2, p) != p - 1)
        ++nonResidue;

    std::uint32_t generator = powerModulo(nonResidue, odd, p); // of the 2^twos-th roots of one
    const std::uint32_t half = powerModulo(a, (odd - 1) / 2, p);
    std::uint32_t root = multiplyModulo(a, half, p);
    std::uint32_t error = multiplyModulo(root, half, p); // root^2 = a·error throughout
    while (error != 1) {
        unsigned order = 0; // the order of the error is 2^order
        for (std::uint32_t e = error; e != 1; e = multiplyModulo(e, e, p))
            ++order;
        for (; order + 1 < twos; --twos)
            generator = multiplyModulo(generator, generator, p);
        root = multiplyModulo(root, generator, p);
        generator = multiplyModulo(generator, generator, p);
        error = multiplyModulo(error, generator, p);
        twos = order;
    }
    return root;
}

} // namespace

std::uint32_t powerModulo(std::uint32_t base, std::uint32_t exponent, std::uint32_t p)
{
    std::uint32_t result = 1;
    for (; exponent != 0; exponent /= 2) {
        if (exponent % 2 != 0)
            result = multiplyModulo(result, base, p);
        base = multiplyModulo(base, base, p);
    }
    return result;
}

std::uint32_t inverseModulo(std::uint32_t a, std::uint32_t m)
{
    std::int64_t coefficient = 1;
    std::int64_t next = 0;
    for (std::uint32_t rest = m; rest != 0;) {
        coefficient -= std::int64_t{a / rest} * next;
        a %= rest;
        std::swap(a, rest);
        std::swap(coefficient, next);
    }
    return static_cast<std::uint32_t>(coefficient < 0 ? coefficient + m : coefficient);
}

std::optional<std::uint32_t> squareRootModulo(std::uint32_t a, std::uint32_t p)
{
    if (a == 0)
        return 0;
    if (p % 4 == 3) {
        const std::uint32_t root = powerModulo(a, (p + 1) / 4, p);
        if (multiplyModulo(root, root, p) != a)
            return std::nullopt;
        return root;
    }
    if (powerModulo(a, (p - 1) / 2, p) != 1)
        return std::nullopt;
    return shanksRoot(a, p);
}

} // namespace bignum::sieve
