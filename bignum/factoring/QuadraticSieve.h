#pragma once

#include <gmpxx.h>
#include <vector>

namespace bignum {

/// Factors of the composite n, which is no perfect power and has at most about 75 digits, by the
/// self-initialising multiple polynomial quadratic sieve of PARI's library: numbers above 1 whose
/// product is n, repeated ones repeatedly. Empty when the sieve fails. Callers take turns; a call
/// cannot be interrupted (70 digits take about a minute).
std::vector<mpz_class> sieveFactors(const mpz_class &n);

/// Ends the thread in which the sieve runs and gives its memory back; the next call starts it anew.
void stopSieve();

} // namespace bignum
