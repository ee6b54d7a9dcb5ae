// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/arithmetic/FibonacciMethods.h"

#include <bit>

namespace bignum {

mpz_class fibonacciByIteration(unsigned n, Work &work)
{
    if (n == 0)
        return 0;
    mpz_class previous = 0;
    mpz_class current = 1;
    iterateFibonacci(0, n, previous, current, work);
    return current;
}

void iterateFibonacci(unsigned k, unsigned n, mpz_class &current, mpz_class &next, Work &work)
{
    for (unsigned i = k + 2; i <= n; ++i) {
        current += next;
        swap(current, next);
        ++work.additions;
    }
}

mpz_class fibonacciByDoubling(unsigned n, Work &work)
{
    // F(k) and F(k+1), where k runs through the leading binary digits of n.
    mpz_class f = 0;
    mpz_class g = 1;
    mpz_class even;
    for (int bit = static_cast<int>(std::bit_width(n)) - 1; bit >= 0; --bit) {
        even = g + g;
        even -= f;
        even *= f;
        f *= f;
        g *= g;
        g += f;
        f = even;
        work.products += 3;
        work.additions += 3;
        if ((n >> bit & 1) != 0) {
            f += g;
            swap(f, g);
            ++work.additions;
        }
    }
    return f;
}

} // namespace bignum
