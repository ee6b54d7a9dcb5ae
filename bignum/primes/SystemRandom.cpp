// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/primes/SystemRandom.h"

#include <cerrno>
#include <sys/random.h>
#include <system_error>
#include <vector>

namespace bignum {

mpz_class randomBits(std::size_t bits)
{
    std::vector<unsigned char> bytes((bits + 7) / 8);
    for (std::size_t filled = 0; filled < bytes.size();) {
        const ssize_t n = getrandom(bytes.data() + filled, bytes.size() - filled, 0);
        if (n > 0)
            filled += static_cast<std::size_t>(n);
        else if (errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "getrandom");
    }
    mpz_class value;
    mpz_import(value.get_mpz_t(), bytes.size(), 1, 1, 0, 0, bytes.data());
    mpz_fdiv_r_2exp(value.get_mpz_t(), value.get_mpz_t(), bits);
    return value;
}

} // namespace bignum
