// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <gmpxx.h>
#include <string>
#include <sys/types.h>

/// PARI's library at the same work. It runs in a process of its own, forked by the constructor, so
/// that neither disturbs the memory of the other; times are taken in that process.
class PariPeer
{
public:
    enum class Work : char { IsPrime = 'p', NextPrime = 'n', FactorCount = 'f' };

    struct Answer
    {
        std::string value; ///< 0 or 1, a prime, the number of different prime factors
        double seconds;    ///< of one repeat
    };

    PariPeer();
    ~PariPeer();
    PariPeer(const PariPeer &) = delete;
    PariPeer &operator=(const PariPeer &) = delete;

    Answer run(Work work, const mpz_class &n, int repeats);

private:
    pid_t m_child;
    std::FILE *m_questions;
    std::FILE *m_answers;
};
