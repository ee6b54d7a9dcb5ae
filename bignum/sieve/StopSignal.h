// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/Deadline.h"

#include <atomic>

namespace bignum {

/// Asks long work on any number of threads to end early: by a request, to one work or to all, or
/// when a deadline passes. No lock and no list of what is at work, so it serves in a forked process
/// and at the end of one as well.
class StopSignal
{
public:
    explicit StopSignal(const Deadline &deadline) : m_deadline(deadline) {}

    void request() { m_requested.store(true, std::memory_order_relaxed); }

    /// Stops whatever has a signal by now.
    static void requestAll() { s_requestsToAll.fetch_add(1, std::memory_order_relaxed); }

    bool requested() const
    {
        return m_requested.load(std::memory_order_relaxed) ||
               m_requestsBefore != s_requestsToAll.load(std::memory_order_relaxed);
    }

    /// Reads the clock: to be asked at most some thousand times a second.
    bool stopped() const { return requested() || m_deadline.passed(); }

private:
    static inline std::atomic<unsigned> s_requestsToAll{0};

    std::atomic<bool> m_requested{false};
    unsigned m_requestsBefore = s_requestsToAll.load(std::memory_order_relaxed);
    Deadline m_deadline;
};

} // namespace bignum
