// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/plan/Multiplier.h"

#include "bignum/primes/SmallPrimes.h"
#include "bignum/sieve/plan/Parameters.h"
#include "bignum/sieve/plan/SmallModulus.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>
#include <vector>

namespace bignum::sieve {

namespace {

constexpr std::uint32_t kMultipliers = 200; // a larger one costs more than it can ever gain
constexpr std::size_t kJudges = 300;        // primes: later ones tell the candidates apart no more

/// A prime, the Legendre symbol of n modulo it, and what the prime divides out of a value on
/// average where kn is a square.
struct Judge
{
    std::uint32_t prime;
    int symbol;
    double gain;
};

/// No more judges than the base will have primes: for short numbers they would cost more than the
/// sieving.
std::vector<Judge> judgesOf(const mpz_class &n)
{
    const std::size_t bits = mpz_sizeinbase(n.get_mpz_t(), 2);
    const std::size_t count = std::min(kJudges, parametersFor(bits).baseSize);
    std::vector<Judge> judges;
    const SmallPrimes &table = smallPrimes();
    for (const std::uint32_t p : std::span(table.primes).first(count))
        judges.push_back({p, mpz_kronecker_ui(n.get_mpz_t(), p), 2 * std::log(p) / (p - 1)});
    return judges;
}

bool isSquareFree(std::uint32_t k)
{
    for (std::uint32_t d = 2; d * d <= k; ++d)
        if (k % (d * d) == 0)
            return false;
    return true;
}

/// The logarithm of what the primes divide out of a value on average, less that of sqrt(k), by
/// which the values grow.
double score(const mpz_class &n, std::uint32_t k, const std::vector<Judge> &judges)
{
    double gain = -0.5 * std::log(k);
    // The polynomials have even values for kn = 1 mod 8, of 2 twos on average; else odd ones.
    if (modulo(n * k, 8) == 1)
        gain += 2 * std::log(2);
    const mpz_class multiplier(k);
    for (const auto &[p, symbolOfN, gainOfP] : judges) {
        const int symbol = symbolOfN * mpz_kronecker_ui(multiplier.get_mpz_t(), p);
        if (symbol == 0)
            gain += std::log(p) / p;
        else if (symbol == 1)
            gain += gainOfP;
    }
    return gain;
}

} // namespace

std::uint32_t chooseMultiplier(const mpz_class &n)
{
    std::uint32_t best = modulo(n, 4); // 1 or 3: the least that fits, coprime to n or not
    double bestScore = -1e9;
    const std::vector<Judge> judges = judgesOf(n);
    for (std::uint32_t k = best; k < kMultipliers; k += 4) {
        if (!isSquareFree(k) || std::gcd(modulo(n, k), k) != 1)
            continue;
        const double thisScore = score(n, k, judges);
        if (thisScore > bestScore) {
            best = k;
            bestScore = thisScore;
        }
    }
    return best;
}

} // namespace bignum::sieve
