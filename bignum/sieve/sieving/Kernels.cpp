// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/sieve/sieving/KernelSets.h"

namespace bignum::sieve {

VectorLevel bestVectorLevel()
{
#if BIGNUM_SIEVE_X86
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw"))
        return VectorLevel::Avx512;
    if (__builtin_cpu_supports("avx2"))
        return VectorLevel::Avx2;
#endif
    return VectorLevel::Plain;
}

const Kernels &kernelsFor(VectorLevel level)
{
#if BIGNUM_SIEVE_X86
    if (level == VectorLevel::Avx512)
        return kAvx512Kernels;
    if (level == VectorLevel::Avx2)
        return kAvx2Kernels;
#endif
    static_cast<void>(level);
    return kPlainKernels;
}

} // namespace bignum::sieve
