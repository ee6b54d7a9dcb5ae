// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/factoring/FactorSearch.h"

#include "bignum/arithmetic/Word.h"
#include "bignum/factoring/Efforts.h"
#include "bignum/factoring/PollardRho.h"
#include "bignum/factoring/TrialDivision.h"
#include "bignum/primes/Primality.h"
#include "bignum/sieve/Cores.h"
#include "bignum/text/NumberText.h"

#include <map>

namespace bignum {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

std::size_t bitCount(const mpz_class &n)
{
    return mpz_sizeinbase(n.get_mpz_t(), 2);
}

/// Work on one number: parts wait until they are split, are found prime, or are given up.
class Search
{
public:
    Search(Effort effort, const FactorTaker &take)
        : m_full(effort == Effort::Full),
          m_stop(m_full ? Deadline(100s) : Deadline(700ms)),
          m_take(take)
    {
    }

    SearchEnd run(mpz_class n)
    {
        const std::vector<SmallFactor> small = removeSmallFactors(n);
        Discovery division{.method = Method::TrialDivision, .took = Clock::now() - m_start};
        for (const auto &[prime, exponent] : small)
            hand(prime, exponent, true, division);
        if (n > 1)
            m_waiting.push_back({n, 1, small.empty() ? Discovery{} : division});
        while (!m_waiting.empty() && !m_refused) {
            const Part part = std::move(m_waiting.back());
            m_waiting.pop_back();
            process(part);
        }
        for (const auto &[composite, part] : m_givenUp)
            hand(composite, part.exponent, false, part.how);
        if (m_refused || m_stop.requested())
            return SearchEnd::Stopped;
        return m_givenUp.empty() ? SearchEnd::Complete : SearchEnd::CompositeLeft;
    }

private:
    struct Part
    {
        mpz_class value;
        unsigned long exponent;
        Discovery how;
    };

    void hand(const mpz_class &base, unsigned long exponent, bool prime, const Discovery &how)
    {
        m_refused = m_refused || !m_take({base, exponent, prime, how, Clock::now() - m_start});
    }

    void process(const Part &part);
    void handPrime(const Part &part);
    void giveUp(const Part &part);
    bool split(const Part &part);
    bool splitByRoot(const Part &part);
    bool splitByRho(const Part &part);
    bool splitByCurves(const Part &part);
    bool splitBySieve(const Part &part);
    void addParts(const Part &part, const mpz_class &factor, const Discovery &how);

    std::size_t testableBits() const
    {
        if (m_stop.requested())
            return 1024;
        return m_full ? 27210 : 4096;
    }

    bool m_full;
    StopSignal m_stop;
    const FactorTaker &m_take;
    bool m_refused = false; ///< the taker wants no more
    Clock::time_point m_start = Clock::now();
    std::vector<Part> m_waiting;
    std::map<mpz_class, Part> m_givenUp;
};

void Search::process(const Part &part)
{
    // Where even a test of primality would outlast the effort, a number counts as composite.
    const bool testable = bitCount(part.value) <= testableBits();
    if (testable && isPrime(part.value))
        handPrime(part);
    else if (!testable || !split(part))
        giveUp(part);
}

/// Takes the prime out of all that is left, so that it is handed over once.
void Search::handPrime(const Part &part)
{
    unsigned long exponent = part.exponent;
    const auto takeOut = [&](mpz_class &value, unsigned long times) {
        const auto removed =
            mpz_remove(value.get_mpz_t(), value.get_mpz_t(), part.value.get_mpz_t());
        exponent += removed * times;
        return removed > 0;
    };
    for (auto other = m_givenUp.begin(); other != m_givenUp.end();) {
        if (!takeOut(other->second.value, other->second.exponent)) {
            ++other;
            continue;
        }
        m_waiting.push_back(std::move(other->second));
        other = m_givenUp.erase(other);
    }
    for (Part &other : m_waiting)
        takeOut(other.value, other.exponent);
    std::erase_if(m_waiting, [](const Part &other) { return other.value == 1; });
    hand(part.value, exponent, true, part.how);
}

void Search::giveUp(const Part &part)
{
    const auto [place, isNew] = m_givenUp.try_emplace(part.value, part);
    if (!isNew)
        place->second.exponent += part.exponent;
}

bool Search::split(const Part &part)
{
    return splitByRoot(part) || splitByRho(part) || splitByCurves(part) || splitBySieve(part);
}

void Search::addParts(const Part &part, const mpz_class &factor, const Discovery &how)
{
    m_waiting.push_back({part.value / factor, part.exponent, how});
    m_waiting.push_back({factor, part.exponent, how});
}

bool Search::splitByRoot(const Part &part)
{
    if (bitCount(part.value) <= 64 || !mpz_perfect_power_p(part.value.get_mpz_t()))
        return false;
    mpz_class root;
    for (unsigned long k = 2;; ++k) {
        if (mpz_root(root.get_mpz_t(), part.value.get_mpz_t(), k) != 0) {
            m_waiting.push_back({root, part.exponent * k, {.method = Method::Root}});
            return true;
        }
    }
}

bool Search::splitByRho(const Part &part)
{
    const mpz_class &n = part.value;
    if (bitCount(n) > kShortRhoBits)
        return false;
    const auto start = Clock::now();
    const auto factor = bitCount(n) <= 64 ? fromUint64(rhoFactor(toUint64(n)))
                                          : shortRhoFactor(n, rhoStepsFor(decimalDigits(n)));
    if (!factor)
        return false;
    addParts(part, *factor, {.method = Method::Rho, .took = Clock::now() - start});
    return true;
}

bool Search::splitByCurves(const Part &part)
{
    const auto start = Clock::now();
    const auto found =
        curveFactor(part.value, curvesFor(decimalDigits(part.value)), m_stop, availableCores());
    if (!found)
        return false;
    addParts(part, found->factor,
             {.method = Method::Curve,
              .curveBound = found->bound,
              .curves = found->curves,
              .took = Clock::now() - start});
    return true;
}

bool Search::splitBySieve(const Part &part)
{
    const std::size_t digits = decimalDigits(part.value);
    if (digits > (m_full ? kSieveDigits : kBriefSieveDigits) || m_stop.stopped())
        return false;
    const auto start = Clock::now();
    const sieve::SieveResult result =
        sieve::sieveFactors(part.value, m_stop, sieveThreadsFor(digits));
    if (result.outcome != sieve::SieveOutcome::Split)
        return false;
    const Discovery how{
        .method = Method::Sieve, .sieve = result.counts, .took = Clock::now() - start};
    for (const mpz_class &factor : result.factors)
        m_waiting.push_back({factor, part.exponent, how});
    return true;
}

} // namespace

SearchEnd findFactors(const mpz_class &n, Effort effort, const FactorTaker &take)
{
    if (abs(n) < 2)
        return SearchEnd::Complete;
    return Search(effort, take).run(abs(n));
}

} // namespace bignum
