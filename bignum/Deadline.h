// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

namespace bignum {

/// The moment at which long work gives up.
class Deadline
{
public:
    using Clock = std::chrono::steady_clock;

    explicit Deadline(Clock::duration fromNow) : m_end(Clock::now() + fromNow) {}

    bool passed() const { return Clock::now() >= m_end; }
    Clock::duration left() const { return m_end - Clock::now(); }

private:
    Clock::time_point m_end;
};

} // namespace bignum
