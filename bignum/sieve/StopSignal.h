#pragma once

#include "bignum/Deadline.h"

#include <atomic>

namespace bignum {

/// Asks long work on any number of threads to end early: by a request, or when a deadline passes.
class StopSignal
{
public:
    explicit StopSignal(const Deadline &deadline) : m_deadline(deadline) {}

    void request() { m_requested.store(true, std::memory_order_relaxed); }

    /// Reads the clock: to be asked at most some thousand times a second.
    bool stopped() const
    {
        return m_requested.load(std::memory_order_relaxed) || m_deadline.passed();
    }

private:
    std::atomic<bool> m_requested{false};
    Deadline m_deadline;
};

} // namespace bignum
