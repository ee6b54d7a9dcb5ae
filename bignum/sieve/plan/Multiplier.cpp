#include "bignum/sieve/plan/Multiplier.h"

#include "bignum/sieve/Word.h"

#include <cmath>
#include <numeric>
#include <primesieve.hpp>
#include <vector>

namespace bignum::sieve {

namespace {

constexpr std::uint32_t kMultipliers = 200; // a larger one costs more than it can ever gain
constexpr std::size_t kJudges = 300;        // primes: later ones tell the candidates apart no more

bool isSquareFree(std::uint32_t k)
{
    for (std::uint32_t d = 2; d * d <= k; ++d)
        if (k % (d * d) == 0)
            return false;
    return true;
}

/// The logarithm of what the primes divide out of a value on average, less that of sqrt(k), by
/// which the values grow.
double score(const mpz_class &n, std::uint32_t k, const std::vector<std::uint32_t> &primes)
{
    double gain = -0.5 * std::log(k);
    // The polynomials have even values for kn = 1 mod 8, of 2 twos on average; else odd ones.
    if (modulo(n * k, 8) == 1)
        gain += 2 * std::log(2);
    for (const std::uint32_t p : primes) {
        const mpz_class residue = modulo(n, p) * (k % p);
        const int symbol = mpz_kronecker_ui(residue.get_mpz_t(), p);
        if (symbol == 0)
            gain += std::log(p) / p;
        else if (symbol == 1)
            gain += 2 * std::log(p) / (p - 1);
    }
    return gain;
}

} // namespace

std::uint32_t chooseMultiplier(const mpz_class &n)
{
    std::uint32_t best = modulo(n, 4); // 1 or 3: the least that fits, coprime to n or not
    double bestScore = -1e9;
    std::vector<std::uint32_t> primes;
    primesieve::generate_n_primes(kJudges, 3, &primes);
    for (std::uint32_t k = best; k < kMultipliers; k += 4) {
        if (!isSquareFree(k) || std::gcd(modulo(n, k), k) != 1)
            continue;
        const double thisScore = score(n, k, primes);
        if (thisScore > bestScore) {
            best = k;
            bestScore = thisScore;
        }
    }
    return best;
}

} // namespace bignum::sieve
