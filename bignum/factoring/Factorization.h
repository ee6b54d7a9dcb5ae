#pragma once

#include <gmpxx.h>
#include <optional>
#include <vector>

namespace bignum {

/// base^exponent in a factorization. `prime` is false for a composite that could not be split.
struct PrimePower
{
    mpz_class base;
    unsigned long exponent;
    bool prime;
};

struct Factorization
{
    std::vector<PrimePower> powers; ///< primes in ascending order, then what was left composite
    bool complete;                  ///< every base is prime
};

/// How long to try: Full takes up to about two minutes, Brief about a second.
enum class Effort { Full, Brief };

/// The factors of |n|; none for 0 and 1.
Factorization factorize(const mpz_class &n, Effort effort);

/// Euler's function; nothing for n < 1 and where n could not be factored.
std::optional<mpz_class> eulerPhi(const mpz_class &n, Effort effort);

} // namespace bignum
