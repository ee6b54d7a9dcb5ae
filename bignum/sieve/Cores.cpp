// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/Cores.h"

#include <algorithm>
#include <thread>
#ifdef __linux__
#include <sched.h>
#endif

namespace bignum {

unsigned availableCores()
{
#ifdef __linux__
    cpu_set_t allowed;
    if (sched_getaffinity(0, sizeof allowed, &allowed) == 0)
        return static_cast<unsigned>(std::max(1, CPU_COUNT(&allowed)));
#endif
    return std::max(1U, std::thread::hardware_concurrency());
}

} // namespace bignum
