// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/sieve/sieving/Kernels.h"

#if defined(__x86_64__) || defined(__i386__)
#define BIGNUM_SIEVE_X86 1
#else
#define BIGNUM_SIEVE_X86 0
#endif

namespace bignum::sieve {

extern const Kernels kPlainKernels;
#if BIGNUM_SIEVE_X86
extern const Kernels kAvx2Kernels;
extern const Kernels kAvx512Kernels;
#endif

} // namespace bignum::sieve
