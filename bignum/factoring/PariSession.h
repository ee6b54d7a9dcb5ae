#pragma once

#include <gmpxx.h>
#include <vector>

namespace bignum {

/// PARI's library, started in the thread that makes this object and used in that thread alone,
/// since it keeps its state by thread; no signal handlers, a stack of bounded size. One object at a
/// time, and no other user of PARI in the process: much of its state is that of the process.
class PariSession
{
public:
    PariSession();
    ~PariSession();
    PariSession(const PariSession &) = delete;
    PariSession &operator=(const PariSession &) = delete;

    /// The factors of the composite n by the quadratic sieve, repeated ones repeatedly; empty on
    /// any error.
    std::vector<mpz_class> sieveFactors(const mpz_class &n) const;
};

} // namespace bignum
