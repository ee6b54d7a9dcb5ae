#include "bignum/factoring/Factorization.h"

#include "bignum/Deadline.h"
#include "bignum/factoring/EllipticCurves.h"
#include "bignum/factoring/PollardRho.h"
#include "bignum/factoring/QuadraticSieve.h"
#include "bignum/factoring/TrialDivision.h"
#include "bignum/primes/Primality.h"

#include <map>

namespace bignum {

namespace {

using namespace std::chrono_literals;

/// The most digits that the sieve is given: what it splits within about a minute, or within a
/// second.
constexpr std::size_t kSieveDigits = 70;
constexpr std::size_t kBriefSieveDigits = 54;

std::size_t digitCount(const mpz_class &n)
{
    return mpz_sizeinbase(n.get_mpz_t(), 10);
}

std::size_t bitCount(const mpz_class &n)
{
    return mpz_sizeinbase(n.get_mpz_t(), 2);
}

/// The steps of the rho method that are worth trying before the sieve, by the same measure as the
/// curves below: a tenth of the sieve's time.
std::uint64_t rhoStepsFor(std::size_t digits)
{
    if (digits < 25)
        return 1U << 10;
    if (digits < 30)
        return 1U << 11;
    return digits < 35 ? 1U << 12 : 1U << 14;
}

/// The curves that are worth trying on a composite of so many digits. Up to kSieveDigits they take
/// about a tenth of the sieve's time, which is what factors too small for the sieve to pay off save
/// (measured); beyond, they go on until the deadline.
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

/// Work on one number: composites wait until they are split, are found prime, or are given up.
class Splitter
{
public:
    explicit Splitter(Effort effort)
        : m_full(effort == Effort::Full), m_deadline(m_full ? Deadline(100s) : Deadline(700ms))
    {
    }

    void add(const mpz_class &n, unsigned long exponent)
    {
        if (n > 1)
            m_waiting.push_back({n, exponent});
    }

    void run()
    {
        while (!m_waiting.empty()) {
            const Item item = m_waiting.back();
            m_waiting.pop_back();
            process(item.value, item.exponent);
        }
    }

    Factorization result(std::vector<PrimePower> smallFactors) const
    {
        Factorization factors{std::move(smallFactors), m_composites.empty()};
        for (const auto &[prime, exponent] : m_primes)
            factors.powers.push_back({prime, exponent, true});
        for (const auto &[composite, exponent] : m_composites)
            factors.powers.push_back({composite, exponent, false});
        return factors;
    }

private:
    struct Item
    {
        mpz_class value;
        unsigned long exponent;
    };

    void process(const mpz_class &n, unsigned long exponent);
    bool splitPower(const mpz_class &n, unsigned long exponent);
    bool splitByRho(const mpz_class &n, unsigned long exponent);
    bool splitByCurves(const mpz_class &n, unsigned long exponent);
    bool addParts(const mpz_class &n, const std::optional<mpz_class> &factor,
                  unsigned long exponent);
    bool splitBySieve(const mpz_class &n, unsigned long exponent);

    bool m_full;
    Deadline m_deadline;
    std::vector<Item> m_waiting;
    std::map<mpz_class, unsigned long> m_primes;
    std::map<mpz_class, unsigned long> m_composites;
};

void Splitter::process(const mpz_class &n, unsigned long exponent)
{
    // Where even a test of primality would outlast the effort, n counts as composite.
    const std::size_t testableBits = m_full ? 27210 : 4096;
    if (bitCount(n) > testableBits) {
        m_composites[n] += exponent;
    } else if (isPrime(n)) {
        m_primes[n] += exponent;
    } else if (bitCount(n) <= 64) {
        addParts(n, mpz_class(rhoFactor(n.get_ui())), exponent);
    } else if (!splitPower(n, exponent) && !splitByRho(n, exponent) &&
               !splitByCurves(n, exponent) && !splitBySieve(n, exponent)) {
        m_composites[n] += exponent;
    }
}

bool Splitter::splitPower(const mpz_class &n, unsigned long exponent)
{
    if (!mpz_perfect_power_p(n.get_mpz_t()))
        return false;
    mpz_class root;
    for (unsigned long k = 2;; ++k) {
        if (mpz_root(root.get_mpz_t(), n.get_mpz_t(), k) != 0) {
            add(root, exponent * k);
            return true;
        }
    }
}

bool Splitter::addParts(const mpz_class &n, const std::optional<mpz_class> &factor,
                        unsigned long exponent)
{
    if (!factor)
        return false;
    add(*factor, exponent);
    add(n / *factor, exponent);
    return true;
}

bool Splitter::splitByRho(const mpz_class &n, unsigned long exponent)
{
    return bitCount(n) <= kShortRhoBits &&
           addParts(n, shortRhoFactor(n, rhoStepsFor(digitCount(n))), exponent);
}

bool Splitter::splitByCurves(const mpz_class &n, unsigned long exponent)
{
    return addParts(n, curveFactor(n, curvesFor(digitCount(n)), m_deadline), exponent);
}

bool Splitter::splitBySieve(const mpz_class &n, unsigned long exponent)
{
    if (digitCount(n) > (m_full ? kSieveDigits : kBriefSieveDigits))
        return false;
    const std::vector<mpz_class> factors = sieveFactors(n);
    for (const mpz_class &factor : factors)
        add(factor, exponent);
    return factors.size() > 1;
}

} // namespace

Factorization factorize(const mpz_class &n, Effort effort)
{
    mpz_class rest = abs(n);
    if (rest < 2)
        return {{}, true};
    std::vector<PrimePower> smallFactors = removeSmallFactors(rest);
    Splitter splitter(effort);
    splitter.add(rest, 1);
    splitter.run();
    return splitter.result(std::move(smallFactors));
}

std::optional<mpz_class> eulerPhi(const mpz_class &n, Effort effort)
{
    if (n < 1)
        return std::nullopt;
    const Factorization factors = factorize(n, effort);
    if (!factors.complete)
        return std::nullopt;
    mpz_class phi = n;
    for (const PrimePower &power : factors.powers)
        phi = phi / power.base * (power.base - 1);
    return phi;
}

} // namespace bignum
