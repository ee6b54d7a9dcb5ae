// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <thread>
#include <vector>

namespace bignum {

/// Runs the work on so many threads, the caller's among them, and returns when all are through; on
/// fewer where no more can be had. What a thread throws ends that thread alone, and what the
/// caller's throws is thrown once the others are through.
template <typename Work>
void runOnThreads(unsigned threads, const Work &work)
{
    const auto guarded = [&work] {
        try {
            work();
        } catch (const std::exception &) {
            // Out of memory: the other threads go on.
        }
    };
    std::vector<std::thread> others;
    try {
        while (others.size() + 1 < threads)
            others.emplace_back(guarded);
    } catch (const std::exception &) {
        // Fewer threads do as well.
    }
    std::exception_ptr thrown;
    try {
        work();
    } catch (...) {
        thrown = std::current_exception();
    }
    for (std::thread &other : others)
        other.join();
    if (thrown)
        std::rethrow_exception(thrown);
}

} // namespace bignum
