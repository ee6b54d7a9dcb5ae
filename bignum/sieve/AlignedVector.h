// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <new>
#include <vector>

namespace bignum::sieve {

/// A cache line, and the widest vector of the processors that the kernels are written for.
constexpr std::size_t kLine = 64;

template <typename T>
struct LineAllocator
{
    using value_type = T;

    LineAllocator() = default;
    template <typename U>
    LineAllocator(const LineAllocator<U> &)
    {
    }

    /// A line more than asked for, since a vector that is read from the middle of a line may reach
    /// beyond the last element.
    T *allocate(std::size_t count)
    {
        return static_cast<T *>(
            ::operator new (count * sizeof(T) + kLine, std::align_val_t{kLine}));
    }
    void deallocate(T *memory, std::size_t) { ::operator delete (memory, std::align_val_t{kLine}); }

    friend bool operator==(const LineAllocator &, const LineAllocator &) { return true; }
};

template <typename T>
using AlignedVector = std::vector<T, LineAllocator<T>>;

} // namespace bignum::sieve
